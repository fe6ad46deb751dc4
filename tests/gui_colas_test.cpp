// The queueing screens driven offscreen, the desktop's wiring of the form's
// edits: the option buttons and Servicios with the enabling, captions and
// tips they drive, the entry's activation on each return, and nuevo (the
// checks: colas_test).
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>

#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "TeoriaColas";
const std::string kSolution = "TeoriaColas_Solucion";

using Values = std::vector<std::pair<const char*, const char*>>;

class ColasScreens : public ScreenTest {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    screens().show(kEntry);
  }
  bool enabled(const QString& name) {
    auto* w = control(kEntry, name);
    return w && w->isEnabled();
  }
  QString caption(const QString& name) { return control<QLabel>(kEntry, name)->text(); }
  void typeAll(const Values& values) {
    for (auto [name, value] : values) type(kEntry, name, value);
  }
  QComboBox* servicios() { return control<QComboBox>(kEntry, "Servicios"); }
  // A choice in Servicios as the user makes it.
  void choose(int index) {
    servicios()->setCurrentIndex(index);
    emit servicios()->activated(index);
  }
  // The enabling of K, its label, N, its label and Servicios, as "KkNnS"
  // with a dot for each disabled one.
  std::string enabling() {
    std::string out;
    const std::pair<const char*, char> controls[] = {
        {"K", 'K'}, {"TamañoCola", 'k'}, {"N", 'N'}, {"Label8", 'n'}, {"Servicios", 'S'}};
    for (auto [name, mark] : controls) out += enabled(name) ? mark : '.';
    return out;
  }
  std::string chosen() {
    std::string out;
    for (const char* name : {"ColaIlimitada", "ColaLimitada", "FuenteFinita"})
      out += control<QRadioButton>(kEntry, name)->isChecked() ? '1' : '0';
    return out;
  }
};

// Each option button chooses the kind of system, enables the fields it asks
// for and puts Servicios back to "M".
TEST_F(ColasScreens, OptionButtonsDriveTheEnabling) {
  choose(1);
  EXPECT_EQ(caption("LblNu"), "Valor esperado");
  const char* steps[][3] = {{"ColaLimitada", "010", "Kk..."},
                            {"FuenteFinita", "001", "..Nn."},
                            {"FuenteFinita", "001", "..Nn."},  // a second click keeps it chosen
                            {"ColaIlimitada", "100", "....S"},
                            {"ColaLimitada", "010", "Kk..."}};
  for (auto& s : steps) {
    SCOPED_TRACE(s[0]);
    press(kEntry, s[0]);
    EXPECT_EQ(chosen(), s[1]);
    EXPECT_EQ(enabling(), s[2]);
    EXPECT_EQ(servicios()->currentIndex(), 0);
    EXPECT_EQ(caption("LblNu"), "Tasa de Servicios");
    EXPECT_FALSE(enabled("VarTS"));
  }
  EXPECT_EQ(text(kEntry, "Estado"), "1");
}

// Servicios relabels the service rate and, for "G" and "D", fixes one server.
TEST_F(ColasScreens, ServiciosAdaptsTheServiceFields) {
  type(kEntry, "S", "3");
  struct Case {
    int index;
    const char* lblNu;
    bool varianza;
    const char* toolTip;
  } cases[] = {
      {1, "Valor esperado", true, "Número medio de clientes atendidos por hora"},
      {2, "Tiempo de Servicio", false, "Número de clientes atendidos por hora"},
      {0, "Tasa de Servicios", false, "Número de clientes atendidos por hora"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.index);
    choose(c.index);
    EXPECT_EQ(caption("LblNu"), c.lblNu);
    EXPECT_EQ(enabled("VarTS"), c.varianza);
    EXPECT_EQ(enabled("LblVar"), c.varianza);
    EXPECT_EQ(text(kEntry, "S"), "1");
    EXPECT_FALSE(enabled("S"));
    EXPECT_EQ(control(kEntry, "Nu")->toolTip(), c.toolTip);
    EXPECT_EQ(text(kEntry, "DistribuciónTS"), QString::number(c.index));
  }
}

// Coming back to the entry fills the lists afresh and resets the enabling to
// the first arrival's, but every text stays, and so does the chosen option.
TEST_F(ColasScreens, EachReturnResetsListsAndEnablingButKeepsTexts) {
  press(kEntry, "ColaLimitada");
  const Values values = {{"S", "2"}, {"K", "4"}, {"Lambda", "3"}, {"Nu", "2"}};
  typeAll(values);
  press(kEntry, "Resolver");
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_EQ(screen(kSolution)->windowTitle(), "Solución");
  EXPECT_NE(painted(kSolution).find("Modelo M/M/s/K"), std::string::npos);
  EXPECT_EQ(text(kEntry, "Tipo"), "6");
  press(kSolution, "back2");
  EXPECT_TRUE(visible(kEntry));
  EXPECT_FALSE(visible(kSolution));
  for (auto [name, value] : values) EXPECT_EQ(text(kEntry, name), value) << name;
  EXPECT_EQ(chosen(), "010");
  EXPECT_EQ(enabling(), "....S");
  EXPECT_EQ(servicios()->count(), 3);
  EXPECT_EQ(control<QListWidget>(kEntry, "LLegadas")->count(), 1);

  // Resolver still reads K, as the option is still chosen.
  type(kEntry, "K", "0");
  press(kEntry, "Resolver");
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_NE(platform.messages[0].find("tamaño de la línea de espera no es correcto"),
            std::string::npos);

  // "G" chosen: the return puts "M" back and enables S, the texts stay.
  press(kEntry, "ColaIlimitada");
  choose(1);
  typeAll({{"Lambda", "1"}, {"Nu", "2"}, {"VarTS", "0.5"}});
  platform.messages.clear();
  press(kEntry, "Resolver");
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_NE(painted(kSolution).find("Modelo M/G/1"), std::string::npos);
  press(kSolution, "back2");
  EXPECT_EQ(servicios()->currentText(), "M");
  EXPECT_EQ(caption("LblNu"), "Tasa de Servicios");
  EXPECT_FALSE(enabled("VarTS"));
  EXPECT_EQ(text(kEntry, "VarTS"), "0.5");
  EXPECT_TRUE(enabled("S"));
  EXPECT_EQ(text(kEntry, "S"), "1");
}

TEST_F(ColasScreens, NuevoBlanksTheFieldsAndChoosesTheUnlimitedQueue) {
  press(kEntry, "FuenteFinita");
  typeAll({{"Título", "Taller"},
           {"S", "2"},
           {"K", "3"},
           {"N", "5"},
           {"Lambda", "1"},
           {"Nu", "3"},
           {"VarTS", "2"}});
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Título"), "Taller");
  for (const char* f : {"S", "K", "N", "Lambda", "Nu", "VarTS"})
    EXPECT_EQ(text(kEntry, f), "") << f;
  EXPECT_EQ(chosen(), "100");
  EXPECT_EQ(enabling(), "....S");
  EXPECT_EQ(servicios()->currentIndex(), 0);
}

}  // namespace
}  // namespace vorel::testing
