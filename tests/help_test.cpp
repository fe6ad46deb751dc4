// The help that the ayuda buttons open: a page for the program, every menu and
// every model, and no link or picture that leads nowhere.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "frame/navigation.h"
#include "tests/test_support.h"

namespace vorel {
namespace {

namespace fs = std::filesystem;
const fs::path kHelp = fs::path(VOREL_SOURCE_DIR) / "help";

TEST(Help, EveryMenuAndModelHasItsPage) {
  for (const nav::ScreenInfo& s : nav::screens()) {
    const std::string page = nav::helpPage(s.name);
    EXPECT_TRUE(fs::exists(kHelp / page)) << s.name << ": " << page;
    if (s.kind == nav::Kind::Entry) {
      EXPECT_NE(testing::readBytes((kHelp / page).string()).find("<h2>Un ejemplo</h2>"),
                std::string::npos)
          << page;
    }
  }
  EXPECT_EQ(nav::helpPage("GI_CantidadEconómicaPedido_Solución"),
            "GI_CantidadEconomicaPedido.html");
  EXPECT_EQ(nav::helpPage("AInicio"), "VorelAyuda.html");
}

TEST(Help, EveryLinkAndPictureResolves) {
  const std::regex reference(R"((href|src)="([^"#:]+)(#[^"]*)?")");
  const fs::path pictures = fs::path(VOREL_SOURCE_DIR) / "resources" / "pictures";
  int links = 0;
  for (const auto& entry : fs::directory_iterator(kHelp)) {
    if (entry.path().extension() != ".html") continue;
    const std::string text = testing::readBytes(entry.path().string());
    for (std::sregex_iterator m(text.begin(), text.end(), reference), end; m != end; ++m) {
      const std::string target = (*m)[2];
      const fs::path resolved =
          target.rfind("img/", 0) == 0 ? pictures / target.substr(4) : kHelp / target;
      EXPECT_TRUE(fs::exists(resolved)) << entry.path().filename() << " -> " << target;
      ++links;
    }
  }
  EXPECT_GT(links, 100);
}

}  // namespace
}  // namespace vorel
