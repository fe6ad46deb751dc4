// The entry screens of the games as live forms (the browser's and the
// desktop's): the two commands keep what Resolver reports, print on their
// panels and show them; nuevo blanks the fields and hides the panels but keeps
// what was computed.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>

#include "frame/catalogue.h"
#include "frame/form.h"
#include "tests/test_support.h"

namespace vorel {
namespace {

struct Shown {
  std::string text;
  bool visible = false, marked = false;
};

// What each bound control of the form shows, by name.
std::map<std::string, Shown> shown(EntryForm& form) {
  std::map<std::string, Shown> all;
  form.each([&all](const ControlState& c) {
    all[c.control] = {c.text ? *c.text : "", c.visible && *c.visible, c.marked && *c.marked};
  });
  return all;
}

bool edit(EntryForm& form, const char* name, Messages& messages) { return form.edit(name, messages); }

// Every example that solves, through the commands as a student presses them,
// reports as a file run does.
TEST(JuegosForms, TheCommandsKeepWhatResolverReportsForEveryExample) {
  for (const auto& [id, screen] : {std::pair{"juegos2", "Juegos_2"}, {"juegos3", "Juegos_3"}}) {
    const std::string folder = std::string(VOREL_SOURCE_DIR) + "/examples/" + id;
    int solved = 0;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
      const std::string name = file.path().stem().string();
      const std::string golden = testing::readBytes(std::string(VOREL_SOURCE_DIR) + "/tests/golden/" +
                                                    id + "/" + name + ".report");
      if (golden.rfind("[salida", 0) == 0) continue;
      auto form = newEntryForm(screen);
      ASSERT_NE(form, nullptr) << screen;
      form->abrir(testing::readBytes(file.path().string()));
      ASSERT_EQ(form->check().size(), 1u) << name << ": Resolver needs a command first";
      Messages messages;
      ASSERT_TRUE(edit(*form, "EstPuras", messages));
      EXPECT_TRUE(messages.empty()) << name;
      ASSERT_TRUE(edit(*form, "EstMixtas", messages));
      EXPECT_TRUE(form->check().empty()) << name;
      EXPECT_EQ(renderText(form->solve().pages().screen), golden) << name;
      EXPECT_EQ(form->guardar(), testing::readBytes(file.path().string())) << name;
      ++solved;
    }
    EXPECT_GE(solved, 4) << id;
  }
}

TEST(JuegosForms, PanelsShowWhatTheirCommandPrintedAndNuevoHidesThem) {
  auto form = newEntryForm("Juegos_2");
  const char* payoffs[][2] = {{"E1(0)", "2"}, {"E1(1)", "1"}, {"E2(0)", "0"}, {"E2(1)", "0"},
                              {"E3(0)", "0"}, {"E3(1)", "0"}, {"E4(0)", "1"}, {"E4(1)", "2"}};
  for (auto& p : payoffs) ASSERT_TRUE(form->setText(p[0], p[1]));
  EXPECT_FALSE(shown(*form)["SPuras"].visible);
  Messages messages;
  edit(*form, "EstPuras", messages);
  EXPECT_TRUE(shown(*form)["SPuras"].visible);
  EXPECT_FALSE(shown(*form)["SMixtas"].visible);
  EXPECT_EQ(shown(*form)["SPuras"].text, "Equilibrio:   (2,1)\nEquilibrio:   (1,2)\n");
  // Both payoffs of each equilibrium stand apart, no other cell.
  for (const char* cell : {"E1(0)", "E1(1)", "E4(0)", "E4(1)"}) EXPECT_TRUE(shown(*form)[cell].marked) << cell;
  for (const char* cell : {"E2(0)", "E2(1)", "E3(0)", "E3(1)"}) EXPECT_FALSE(shown(*form)[cell].marked) << cell;
  edit(*form, "EstMixtas", messages);
  EXPECT_EQ(shown(*form)["SMixtas"].text.rfind("J1 juega:\nDecisión1 con p =  .6666667\n", 0), 0u)
      << shown(*form)["SMixtas"].text;

  // A refused game: the message, and both panels hidden.
  for (auto& p : payoffs) form->setText(p[0], "1");
  edit(*form, "EstPuras", messages);
  ASSERT_EQ(messages.size(), 1u);
  EXPECT_EQ(messages[0].text, "No se puede dar esta situación de juego");
  EXPECT_FALSE(shown(*form)["SPuras"].visible || shown(*form)["SMixtas"].visible);
  EXPECT_FALSE(shown(*form)["E1(0)"].marked) << "a hidden panel marks no cell";

  // A strategy that dominates: no mixed equilibrium, the panel says so.
  form->setText("E1(0)", "3");
  form->setText("E1(1)", "3");
  edit(*form, "EstMixtas", messages);
  EXPECT_EQ(shown(*form)["SMixtas"].text.rfind(" \nNo existen equilibrios en\n", 0), 0u);
  EXPECT_TRUE(shown(*form)["SMixtas"].visible);
  form->nuevo();
  EXPECT_EQ(shown(*form)["E1(0)"].text, "");
  EXPECT_EQ(shown(*form)["Titulo1"].text, "");
  EXPECT_FALSE(shown(*form)["SPuras"].visible || shown(*form)["SMixtas"].visible);
  EXPECT_EQ(shown(*form)["SMixtas"].text, "");
  EXPECT_TRUE(form->check().empty()) << "what was computed stays for Resolver";
}

}  // namespace
}  // namespace vorel
