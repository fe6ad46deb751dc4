// The screens of decisions under risk driven offscreen: the arrows between
// the three pages with their tips, the focus of the probability's message,
// and the head "Ps" over the row of probabilities.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <set>

#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "DecisionRiesgoNobayesiano";
const std::string kSolution = "DecisionRiesgoNobayesiano_solucion";

class RiesgoScreens : public ScreenTest {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    openFile(kEntry, examplePath("riesgo", "libro.txt"));
  }
  std::set<std::string> arrows() {
    std::set<std::string> out;
    for (const char* name : {"forward1", "Back1", "forward2", "back2", "volver"})
      if (!control(kSolution, name)->isHidden()) out.insert(name);
    return out;
  }
  std::string criterion() {
    const std::string page = painted(kSolution);
    for (const char* c : {"SIMPLE", "ESTOCÁSTICA", "VALOR MEDIO"})
      if (page.find(c) != std::string::npos) return c;
    return "?";
  }
};

TEST_F(RiesgoScreens, ArrowsLeadFromPageToPageAndVolverOnlyFromTheFirst) {
  press(kEntry, "Resolver");
  const std::pair<const char*, const char*> tips[] = {
      {"forward1", "Criterio de la dominancia estocástica"},
      {"Back1", "Criterio de la dominancia simple"},
      {"forward2", "Criterio del valor medio"},
      {"back2", "Criterio de la dominancia estocástica"}};
  for (auto [name, tip] : tips) EXPECT_EQ(control(kSolution, name)->toolTip(), tip);
  EXPECT_EQ(criterion(), "SIMPLE");
  EXPECT_EQ(arrows(), (std::set<std::string>{"forward1", "volver"}));
  const std::tuple<const char*, const char*, std::set<std::string>> steps[] = {
      {"forward1", "ESTOCÁSTICA", {"Back1", "forward2"}},
      {"forward2", "VALOR MEDIO", {"back2"}},
      {"back2", "ESTOCÁSTICA", {"Back1", "forward2"}},
      {"Back1", "SIMPLE", {"forward1", "volver"}},
      {"forward1", "ESTOCÁSTICA", {"Back1", "forward2"}},
      {"forward2", "VALOR MEDIO", {"back2"}},
  };
  for (const auto& [button, page, shown] : steps) {
    press(kSolution, button);
    EXPECT_EQ(criterion(), page) << button;
    EXPECT_EQ(arrows(), shown) << button;
  }
  // Leaving from the last page, the next activation starts again at the first.
  press(kSolution, "gohome");
  screens().show(kEntry);
  press(kEntry, "Resolver");
  EXPECT_EQ(criterion(), "SIMPLE");
  press(kSolution, "volver");
  press(kEntry, "Image5");
  EXPECT_TRUE(visible("DecisionTeoria"));
}

TEST_F(RiesgoScreens, TheProbabilityMessageTakesTheFocusToItsCell) {
  type(kEntry, "C1(5)", "1.5");
  control(kEntry, "C3(0)")->setFocus();
  press(kEntry, "Resolver");
  EXPECT_EQ(focused(kEntry), "C1(5)");
  type(kEntry, "C1(5)", ".2");
  type(kEntry, "C2(1)", "");
  control(kEntry, "C3(0)")->setFocus();
  press(kEntry, "Resolver");
  EXPECT_EQ(platform.messages.back(), "Debe Completar la tabla");
  EXPECT_EQ(focused(kEntry), "C3(0)");
  EXPECT_FALSE(visible(kSolution));
}

TEST_F(RiesgoScreens, PsStandsOverTheRowBelowTheAlternatives) {
  auto head = [&](int i) {
    return control<QLabel>(kEntry, QString("lblAlternativa(%1)").arg(i))->text();
  };
  EXPECT_EQ(head(5), "Ps");  // as the file of five alternatives was read
  control<QComboBox>(kEntry, "NumAlternativas")->setCurrentIndex(6);
  control<QComboBox>(kEntry, "NumEstados")->setCurrentIndex(7);
  press(kEntry, "RediseñarTabla");
  EXPECT_EQ(head(5), "Alternativa 6");
  EXPECT_EQ(head(7), "Ps");
  EXPECT_TRUE(shown(kEntry, "C8(7)"));
  EXPECT_EQ(text(kEntry, "C1(5)"), "0.2");  // texts stay
  EXPECT_EQ(control<QLabel>(kEntry, "Label7")->text(),
            "Ps: Probalididad de ocurrencia de los diferentes estados de la naturaleza");
  press(kEntry, "nuevo");
  EXPECT_EQ(head(4), "Ps");
  EXPECT_FALSE(shown(kEntry, "C1(5)"));
}

}  // namespace
}  // namespace vorel::testing
