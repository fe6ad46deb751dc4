// The queueing screens driven offscreen: every example through abrir and
// Resolver, the option buttons and Servicios with the enabling they drive,
// the entry's activation on each return, the checks in their order, the
// problem file, the printed page and the divisions by zero at utilisation one.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>

#include "frame/gui/model_screens.h"
#include "frame/problem_file.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "TeoriaColas";
const std::string kSolution = "TeoriaColas_Solucion";
const QString kExamples = QString(VOREL_SOURCE_DIR) + "/examples/colas/";

class ColasScreens : public ScreenTest {
protected:
  void SetUp() override {
    ScreenTest::SetUp();
    screens().show(kEntry);
  }
  void open(const QString& path) {
    platform.openAnswers.push_back(path);
    press(kEntry, "abrir");
  }
  template <class W = QWidget>
  W* control(const QString& name) {
    auto* s = screen(kEntry);
    return s ? s->findChild<W*>(name) : nullptr;
  }
  bool enabled(const QString& name) {
    auto* w = control(name);
    return w && w->isEnabled();
  }
  QComboBox* servicios() { return control<QComboBox>("Servicios"); }
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
      out += control<QRadioButton>(name)->isChecked() ? '1' : '0';
    return out;
  }
  gui::SolutionScreen* solution() { return dynamic_cast<gui::SolutionScreen*>(screen(kSolution)); }
  std::string report() { return solution() ? solution()->Solucion1()->plainText() : "<none>"; }
};

// Every example solves on the screens as on the command line: the painted
// report and the kept page read as the golden texts, an unstable queue gives
// its message, and utilisation one the platform's division error.
TEST_F(ColasScreens, EveryExampleReadsAsItsGoldenText) {
  const QStringList files = QDir(kExamples).entryList(QDir::Files, QDir::Name);
  ASSERT_GE(files.size(), 10);
  for (const QString& file : files) {
    SCOPED_TRACE(file.toStdString());
    screens().reset();
    closeAllProblemFiles();
    platform.messages.clear();
    platform.runtimeErrors.clear();
    screens().show(kEntry);
    open(kExamples + file);
    press(kEntry, "Resolver");
    const std::string base = std::string(VOREL_SOURCE_DIR) + "/tests/golden/colas/" +
                             QFileInfo(file).completeBaseName().toStdString();
    const std::string golden = readBytes(base + ".report");
    if (golden.rfind("[salida 1]\n", 0) == 0) {
      std::string told;
      for (const auto& m : platform.messages) told += m + "\n";
      EXPECT_EQ(told, golden.substr(11));
      EXPECT_TRUE(visible(kEntry));
      EXPECT_EQ(screen(kSolution), nullptr);
    } else if (golden.rfind("[salida 3]\n", 0) == 0) {
      ASSERT_EQ(platform.runtimeErrors.size(), 1u);
      EXPECT_EQ("Error " + std::to_string(platform.runtimeErrors[0]),
                golden.substr(11, golden.find(':') - 11));
    } else {
      EXPECT_TRUE(platform.messages.empty());
      EXPECT_TRUE(platform.runtimeErrors.empty());
      EXPECT_FALSE(visible(kEntry));
      EXPECT_TRUE(visible(kSolution));
      EXPECT_EQ(report(), golden);
      EXPECT_EQ(renderText(solution()->page()), readBytes(base + ".page"));
    }
  }
}

TEST_F(ColasScreens, TheEntryShowsItsCaptionsAndFirstEnabling) {
  EXPECT_EQ(screen(kEntry)->windowTitle(), "Teoría de Colas");
  EXPECT_EQ(screen(kEntry)->findChild<QAbstractButton*>("volver"), nullptr);
  EXPECT_EQ(text(kEntry, "Título"), "Problema 1");
  const char* options[][2] = {{"ColaIlimitada", "Línea de Espera Ilimitada"},
                              {"ColaLimitada", "Línea de Espera Limitada"},
                              {"FuenteFinita", "Fuente de Entrada Finita"}};
  for (auto& o : options) EXPECT_EQ(control<QRadioButton>(o[0])->text(), o[1]);
  EXPECT_EQ(chosen(), "100");
  EXPECT_EQ(enabling(), "....S");
  EXPECT_EQ(control<QLabel>("TamañoCola")->text(), "Tamaño        Línea de Espera");
  EXPECT_EQ(control<QLabel>("Label8")->text(), "Tamaño         Fuente de entrada");
  EXPECT_EQ(control<QLabel>("LblNu")->text(), "Tasa de Servicios");
  EXPECT_EQ(control<QLabel>("LblVar")->text(), "Varianza");
  EXPECT_FALSE(enabled("VarTS"));
  EXPECT_FALSE(enabled("LblVar"));
  QStringList captions;
  for (auto* label : screen(kEntry)->findChildren<QLabel*>()) captions << label->text();
  for (const char* caption :
       {" Número de  Servidores", " Tasa de Llegadas", "Accesos/unidad de           tiempo",
        "Servicios/unidad de           tiempo", "Distribución tiempo entre llegadas",
        "Distribución tiempo entre servicios"})
    EXPECT_TRUE(captions.contains(caption)) << caption;
  auto* llegadas = control<QListWidget>("LLegadas");
  ASSERT_EQ(llegadas->count(), 1);
  EXPECT_EQ(llegadas->item(0)->text(), "M");
  ASSERT_EQ(servicios()->count(), 3);
  EXPECT_EQ(servicios()->itemText(1), "G");
  EXPECT_EQ(servicios()->currentText(), "M");
}

// Each option button chooses the kind of system, enables the fields it asks
// for and puts Servicios back to "M".
TEST_F(ColasScreens, OptionButtonsDriveTheEnabling) {
  choose(1);
  EXPECT_EQ(control<QLabel>("LblNu")->text(), "Valor esperado");
  struct Paso {
    const char* option;
    const char* chosen;
    const char* enabling;
  };
  const Paso pasos[] = {{"ColaLimitada", "010", "Kk..."},
                        {"FuenteFinita", "001", "..Nn."},
                        {"FuenteFinita", "001", "..Nn."},  // a second click keeps it chosen
                        {"ColaIlimitada", "100", "....S"},
                        {"ColaLimitada", "010", "Kk..."}};
  for (const Paso& p : pasos) {
    SCOPED_TRACE(p.option);
    press(kEntry, p.option);
    EXPECT_EQ(chosen(), p.chosen);
    EXPECT_EQ(enabling(), p.enabling);
    EXPECT_EQ(servicios()->currentIndex(), 0);
    EXPECT_EQ(control<QLabel>("LblNu")->text(), "Tasa de Servicios");
    EXPECT_FALSE(enabled("VarTS"));
  }
  EXPECT_EQ(text(kEntry, "Estado"), "1");
}

// Servicios relabels the service rate and, for "G" and "D", fixes one server.
TEST_F(ColasScreens, ServiciosAdaptsTheServiceFields) {
  type(kEntry, "S", "3");
  struct Caso {
    int index;
    const char* LblNu;
    bool varianza;
    const char* S;
    bool SEnabled;
    const char* toolTip;
  };
  const Caso casos[] = {
      {1, "Valor esperado", true, "1", false, "Número medio de clientes atendidos por hora"},
      {2, "Tiempo de Servicio", false, "1", false, "Número de clientes atendidos por hora"},
      {0, "Tasa de Servicios", false, "1", false, "Número de clientes atendidos por hora"},
  };
  for (const Caso& c : casos) {
    SCOPED_TRACE(c.index);
    choose(c.index);
    EXPECT_EQ(control<QLabel>("LblNu")->text(), c.LblNu);
    EXPECT_EQ(enabled("VarTS"), c.varianza);
    EXPECT_EQ(enabled("LblVar"), c.varianza);
    EXPECT_EQ(text(kEntry, "S"), c.S);
    EXPECT_EQ(enabled("S"), c.SEnabled);
    EXPECT_EQ(control<QLineEdit>("Nu")->toolTip(), c.toolTip);
    EXPECT_EQ(text(kEntry, "DistribuciónTS"), QString::number(c.index));
  }
}

// Coming back to the entry fills the lists afresh and resets the enabling to
// the first arrival's, but every text stays, and so does the chosen option.
TEST_F(ColasScreens, EachReturnResetsListsAndEnablingButKeepsTexts) {
  press(kEntry, "ColaLimitada");
  const char* values[][2] = {{"S", "2"}, {"K", "4"}, {"Lambda", "3"}, {"Nu", "2"}};
  for (auto& v : values) type(kEntry, v[0], v[1]);
  press(kEntry, "Resolver");
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_NE(report().find("Modelo M/M/s/K"), std::string::npos);
  EXPECT_EQ(text(kEntry, "Tipo"), "6");
  press(kSolution, "back2");
  EXPECT_TRUE(visible(kEntry));
  EXPECT_FALSE(visible(kSolution));
  for (auto& v : values) EXPECT_EQ(text(kEntry, v[0]), v[1]) << v[0];
  EXPECT_EQ(chosen(), "010");
  EXPECT_EQ(enabling(), "....S");
  EXPECT_EQ(servicios()->count(), 3);
  EXPECT_EQ(control<QListWidget>("LLegadas")->count(), 1);

  // Resolver still reads K, as the option is still chosen.
  type(kEntry, "K", "0");
  press(kEntry, "Resolver");
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0],
            "El valor correspondiente al tamaño de la línea de espera no es correcto, introduzca "
            "un valor comprendido entre 1 y 255");

  // "G" chosen: the return puts "M" back and enables S, the texts stay.
  press(kEntry, "ColaIlimitada");
  choose(1);
  type(kEntry, "Lambda", "1");
  type(kEntry, "Nu", "2");
  type(kEntry, "VarTS", "0.5");
  platform.messages.clear();
  press(kEntry, "Resolver");
  ASSERT_TRUE(platform.messages.empty());
  EXPECT_NE(report().find("Modelo M/G/1"), std::string::npos);
  press(kSolution, "back2");
  EXPECT_EQ(servicios()->currentText(), "M");
  EXPECT_EQ(control<QLabel>("LblNu")->text(), "Tasa de Servicios");
  EXPECT_FALSE(enabled("VarTS"));
  EXPECT_EQ(text(kEntry, "VarTS"), "0.5");
  EXPECT_TRUE(enabled("S"));
  EXPECT_EQ(text(kEntry, "S"), "1");
}

// The checks in their order, the first failure alone.
TEST_F(ColasScreens, TheFirstFailingCheckIsTold) {
  struct Caso {
    const char* option;  // nullptr: unlimited queue
    int servicio;
    std::vector<std::pair<const char*, const char*>> values;
    std::string message;
  };
  const std::vector<std::pair<const char*, const char*>> ok = {
      {"S", "1"}, {"K", "3"}, {"N", "4"}, {"Lambda", "1"}, {"Nu", "2"}, {"VarTS", "1"}};
  const Caso casos[] = {
      {nullptr, 0, {{"S", ""}, {"Lambda", "x"}},
       "El valor correspondiente al número de servidores no existe, introduzca un valor "
       "comprendido entre 1 y 255"},
      {nullptr, 0, {{"S", "256"}},
       "El valor correspondiente al numero de servidores no es correcto, introduzca un valor "
       "comprendido entre 1 y 255"},
      {"ColaLimitada", 0, {{"K", "k"}, {"Lambda", "0"}},
       "El valor correspondiente al tamaño de la línea de espera no existe, introduzca un valor "
       "comprendido entre 1 y 255"},
      {"FuenteFinita", 0, {{"K", "k"}, {"N", "0.5"}},
       "El valor correspondiente al tamaño de la fuente de entrada no es correcto, introduzca un "
       "valor comprendido entre 1 y 255"},
      {nullptr, 0, {{"K", "k"}, {"N", ""}, {"Lambda", "0"}},
       "El valor correspondiente a la tasa de llegadas no es correcto, introduzca un valor "
       "comprendido entre 0 y 255"},
      {nullptr, 0, {{"Nu", "tres"}},
       "El valor correspondiente a la tasa de servicios no existe, introduzca un valor "
       "comprendido entre 0 y 255"},
      {nullptr, 1, {{"Nu", "300"}},
       "El valor correspondiente al valor esperado del tiempo de servicios no es correcto, "
       "introduzca un valor comprendido entre 0 y 255"},
      {nullptr, 2, {{"Nu", "0"}},
       "El valor correspondiente al tiempo de de servicio no es correcto, introduzca un valor "
       "comprendido entre 0 y 255"},
      {nullptr, 1, {{"VarTS", ""}},
       "El valor correspondiente a la varianza del tiempo de servicios no existe, introduzca un "
       "valor comprendido entre 0 y 255"},
      {nullptr, 2, {{"VarTS", ""}, {"Nu", "3"}}, ""},  // no variance for "D"
      {nullptr, 0, {{"S", "2"}, {"Lambda", "5"}, {"Nu", "2"}},
       "El sistema no se encuentra en fase estable"},
      {"ColaLimitada", 0, {{"S", "2"}, {"Lambda", "5"}, {"Nu", "2"}}, ""},  // always stable
  };
  for (const Caso& c : casos) {
    SCOPED_TRACE(c.message);
    screens().reset();
    platform.messages.clear();
    screens().show(kEntry);
    if (c.option) press(kEntry, c.option);
    if (c.servicio) choose(c.servicio);
    for (auto& [name, value] : ok) type(kEntry, name, value);
    for (auto& [name, value] : c.values) type(kEntry, name, value);
    press(kEntry, "Resolver");
    if (c.message.empty()) {
      EXPECT_TRUE(platform.messages.empty());
      EXPECT_TRUE(visible(kSolution));
    } else {
      ASSERT_EQ(platform.messages.size(), 1u);
      EXPECT_EQ(platform.messages[0], c.message);
      EXPECT_TRUE(visible(kEntry));
      EXPECT_EQ(screen(kSolution), nullptr);
    }
  }
}

// Typed as the example of M/M/1, the report reads as that example's.
TEST_F(ColasScreens, ATypedQueueReadsAsTheSameQueueOpened) {
  const char* values[][2] = {{"Título", "Cola M/M/1"}, {"S", "1"}, {"Lambda", "2"}, {"Nu", "3"}};
  for (auto& v : values) type(kEntry, v[0], v[1]);
  press(kEntry, "Resolver");
  EXPECT_EQ(screen(kSolution)->windowTitle(), "Solución");
  EXPECT_EQ(text(kEntry, "Tipo"), "1");
  EXPECT_EQ(report(), readBytes(std::string(VOREL_SOURCE_DIR) + "/tests/golden/colas/mm1.report"));
}

TEST_F(ColasScreens, NuevoBlanksTheFieldsAndChoosesTheUnlimitedQueue) {
  press(kEntry, "FuenteFinita");
  const char* values[][2] = {{"Título", "Taller"}, {"S", "2"}, {"K", "3"}, {"N", "5"},
                             {"Lambda", "1"},      {"Nu", "3"}, {"VarTS", "2"}};
  for (auto& v : values) type(kEntry, v[0], v[1]);
  press(kEntry, "nuevo");
  EXPECT_EQ(text(kEntry, "Título"), "Taller");
  for (const char* f : {"S", "K", "N", "Lambda", "Nu", "VarTS"}) EXPECT_EQ(text(kEntry, f), "") << f;
  EXPECT_EQ(chosen(), "100");
  EXPECT_EQ(enabling(), "....S");
  EXPECT_EQ(servicios()->currentIndex(), 0);
}

TEST_F(ColasScreens, SavedFileOpensInALaterRun) {
  type(kEntry, "Título", "Taller de reparación");
  press(kEntry, "FuenteFinita");
  const char* values[][2] = {{"S", "2"}, {"N", "6"}, {"Lambda", "0.5"}, {"Nu", "2"}};
  for (auto& v : values) type(kEntry, v[0], v[1]);
  const QString path = QString::fromStdString(tempPath("taller.txt"));
  platform.saveAnswers.push_back(path);
  press(kEntry, "guardar");
  EXPECT_EQ(platform.lastFileName, "Taller de reparación");
  EXPECT_EQ(readBytes(path.toStdString()),
            "\"Taller de reparaci\xF3n\"\r\n\"2\"\r\n#FALSE#\r\n#FALSE#\r\n#TRUE#\r\n#FALSE#\r\n"
            "#FALSE#\r\n\"\"\r\n#TRUE#\r\n#TRUE#\r\n\"6\"\r\n\"0.5\"\r\n\"2\"\r\n#FALSE#\r\n"
            "#FALSE#\r\n\"\"\r\n0\r\n#FALSE#\r\n");

  press(kEntry, "nuevo");
  open(path);  // still open for writing in this run: nothing happens
  EXPECT_EQ(text(kEntry, "N"), "");
  EXPECT_EQ(chosen(), "100");

  closeAllProblemFiles();  // a later run
  open(path);
  EXPECT_EQ(text(kEntry, "Título"), "Taller de reparación");
  EXPECT_EQ(text(kEntry, "N"), "6");
  EXPECT_EQ(text(kEntry, "Lambda"), "0.5");
  EXPECT_EQ(chosen(), "001");
  EXPECT_EQ(enabling(), "..Nn.");
  press(kEntry, "Resolver");
  EXPECT_NE(report().find("Modelo M/M/s/N"), std::string::npos);
}

TEST_F(ColasScreens, ImprimirPrintsTheStoredPage) {
  open(kExamples + "mm1k.txt");
  press(kEntry, "Resolver");
  const QString pdf = QString::fromStdString(tempPath("colas.pdf"));
  platform.printTo(pdf);
  press(kSolution, "Imprimir");
  press(kSolution, "Imprimir");
  EXPECT_EQ(platform.printerDialogs, 2);
  platform.endProcess();
  const std::string text = pdfText(pdf);
  const std::size_t first = text.find("TEORÍA DE COLAS");
  ASSERT_NE(first, std::string::npos);
  EXPECT_NE(text.find("TEORÍA DE COLAS", first + 1), std::string::npos);
  EXPECT_NE(text.find("Modelo M/M/1/K"), std::string::npos);
  EXPECT_NE(text.find("MEDIDAS DE RENDIMIENTO"), std::string::npos);
  EXPECT_NE(text.find("Tasa media de llegadas:"), std::string::npos);
}

// Utilisation one passes the stability test and then divides by zero in
// M/M/1 and in M/M/1/K: the platform's error 11, with no report painted.
TEST_F(ColasScreens, UtilisationOneIsADivisionByZero) {
  for (const char* option : {"ColaIlimitada", "ColaLimitada"}) {
    SCOPED_TRACE(option);
    screens().reset();
    platform.runtimeErrors.clear();
    screens().show(kEntry);
    press(kEntry, option);
    const char* values[][2] = {{"S", "1"}, {"K", "3"}, {"Lambda", "2.5"}, {"Nu", "2.5"}};
    for (auto& v : values) type(kEntry, v[0], v[1]);
    press(kEntry, "Resolver");
    EXPECT_TRUE(platform.messages.empty());
    ASSERT_EQ(platform.runtimeErrors.size(), 1u);
    EXPECT_EQ(platform.runtimeErrors[0], 11);
    EXPECT_EQ(report(), "");
  }
}

}  // namespace
}  // namespace vorel::testing
