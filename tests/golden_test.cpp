// Every example problem solves through vorel-report to its golden text, and
// every example is exactly the file the program writes for that problem.
//
// Examples live in examples/<model id>/<name>.txt; their golden texts in
// tests/golden/<model id>/<name>.report (the screen) and .page (--print).
// A run that does not print a report keeps its exit status and stderr in the
// golden text. VOREL_UPDATE_GOLDEN=1 writes the golden files anew.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "frame/catalogue.h"
#include "tests/test_support.h"

namespace vorel {
namespace {

namespace fs = std::filesystem;

std::string transcript(const std::string& arguments) {
  std::string err = testing::tempPath("stderr.txt");
  std::string command = std::string(VOREL_REPORT_EXE) + " " + arguments + " 2>" + err;
  FILE* pipe = popen(command.c_str(), "r");
  std::string out;
  std::array<char, 4096> buffer;
  std::size_t n;
  while ((n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0) out.append(buffer.data(), n);
  int status = WEXITSTATUS(pclose(pipe));
  if (status != 0) out += "[salida " + std::to_string(status) + "]\n" + testing::readBytes(err);
  return out;
}

void compareWithGolden(const std::string& actual, const fs::path& golden) {
  if (std::getenv("VOREL_UPDATE_GOLDEN")) {
    fs::create_directories(golden.parent_path());
    testing::writeBytes(golden.string(), actual);
  }
  ASSERT_TRUE(fs::exists(golden)) << "no golden text " << golden;
  EXPECT_EQ(actual, testing::readBytes(golden.string())) << golden;
}

TEST(Examples, SolveToTheirGoldenText) {
  const fs::path source(VOREL_SOURCE_DIR);
  int count = 0;
  for (const auto& model : fs::directory_iterator(source / "examples")) {
    const std::string id = model.path().filename().string();
    ASSERT_NE(findModel(id), nullptr) << "examples for an unknown model: " << id;
    for (const auto& example : fs::directory_iterator(model.path())) {
      const fs::path golden = source / "tests" / "golden" / id / example.path().stem();
      const std::string file = example.path().string();
      SCOPED_TRACE(file);
      compareWithGolden(transcript(id + " '" + file + "'"), golden.string() + ".report");
      compareWithGolden(transcript(id + " '" + file + "' --print"), golden.string() + ".page");
      // A charted model's chart data (what its screen draws and its page paints).
      const std::string chart = transcript(id + " '" + file + "' --chart");
      const fs::path chartGolden = golden.string() + ".chart";
      if (chart.rfind("Gráfico:", 0) == 0 || fs::exists(chartGolden))
        compareWithGolden(chart, chartGolden);
      ++count;
    }
  }
  EXPECT_GT(count, 0);
}

TEST(Examples, AreWrittenAsTheProgramWritesThem) {
  for (const auto& model : fs::directory_iterator(fs::path(VOREL_SOURCE_DIR) / "examples")) {
    const CatalogueEntry* m = findModel(model.path().filename().string());
    ASSERT_NE(m, nullptr);
    for (const auto& example : fs::directory_iterator(model.path())) {
      const std::string file = example.path().string();
      EXPECT_EQ(m->resave(file), testing::readBytes(file)) << file;
    }
  }
}

TEST(CommandLine, ListsModelsAndRejectsUnknownOnes) {
  const std::string list = transcript("--list");
  for (const CatalogueEntry& m : catalogue())
    EXPECT_NE(list.find(m.id + "\t" + m.screen + "\n"), std::string::npos) << m.id;
  EXPECT_EQ(transcript("nada x.txt"),
            "[salida 2]\nModelo desconocido: nada (vorel-report --list los enumera)\n");
  EXPECT_EQ(transcript("cep /no/such/file.txt"),
            "[salida 2]\nNo se pudo leer el fichero: /no/such/file.txt\n");
  EXPECT_NE(findModel("GI_CantidadEconómicaPedido"), nullptr);
}

// Options stand anywhere; several files are solved in turn, each headed by its
// name, one file's failure neither stopping the others nor hiding its status.
TEST(CommandLine, SolvesManyFilesWithOptionsAnywhere) {
  const std::string ex = std::string(VOREL_SOURCE_DIR) + "/examples/";
  const std::string book = ex + "cep/libro.txt", limits = ex + "cep/limites.txt";
  EXPECT_EQ(transcript("--print cep " + book), transcript("cep " + book + " --print"));
  EXPECT_EQ(transcript("cep " + book + " " + limits),
            "==> " + book + " <==\n" + transcript("cep " + book) + "==> " + limits + " <==\n" +
                transcript("cep " + limits));

  const std::string zero = ex + "colas/ro-uno.txt", checks = ex + "cep/demanda-cero.txt";
  EXPECT_EQ(transcript("colas " + zero + " " + ex + "colas/mm1.txt /dev/zero"),
            "==> " + zero + " <==\n==> " + ex + "colas/mm1.txt <==\n" +
                transcript("colas " + ex + "colas/mm1.txt") + "==> /dev/zero <==\n[salida 3]\n" +
                zero + ": Error 11: División por cero\nNo se pudo leer el fichero: /dev/zero\n");
  EXPECT_NE(transcript("cep " + checks + " " + book)
                .find("[salida 1]\n" + checks + ": Valor de la demanda (D) no válido."),
            std::string::npos);
  EXPECT_EQ(transcript("cep").substr(0, 21), "[salida 2]\nUso: vorel");
  EXPECT_EQ(transcript("cep " + book + " --pdf").substr(0, 21), "[salida 2]\nUso: vorel");
  EXPECT_EQ(transcript("cep " + book + " --grafico medias"),
            "[salida 2]\nGráfico desconocido: medias (vorel-report --help los enumera)\n");
}

// The charts that open from the means chart of control by variables: one
// whose button the means chart hides is refused, and Imprimir on either of
// them raises error 91, so --print and --pdf end in it with no page.
TEST(CommandLine, ControlChartsAsTheirScreensAllow) {
  const std::string ex = std::string(VOREL_SOURCE_DIR) + "/examples/control-variables/";
  const std::string error91 =
      "[salida 3]\nError 91: Variable de tipo Object o la variable de bloque With no está "
      "establecida\n";
  // Option1, samples outside: only "Control de Desviaciones Típicas" is shown.
  const std::string uno = ex + "fuera-ambos-lados.txt";
  std::string out = transcript("control-variables " + uno + " --grafico recorridos");
  EXPECT_EQ(out.substr(0, 11), "[salida 2]\n");
  EXPECT_NE(out.find("«Control de Recorridos»"), std::string::npos) << out;
  out = transcript("control-variables " + uno + " --grafico desviaciones");
  EXPECT_NE(out.find("Smedia:"), std::string::npos) << out;
  EXPECT_EQ(transcript("control-variables " + uno + " --grafico desviaciones --print"), error91);
  const std::string pdf = testing::tempPath("desviaciones.pdf");
  std::filesystem::remove(pdf);
  EXPECT_EQ(transcript("control-variables " + uno + " --grafico desviaciones --pdf " + pdf),
            error91);
  EXPECT_FALSE(std::filesystem::exists(pdf));
  // The same samples under Option2: the means are out of control, so only
  // "Control de Recorridos" is shown.
  std::string bytes = testing::readBytes(uno);
  const std::size_t flags = bytes.find("#TRUE#\r\n#FALSE#");
  ASSERT_NE(flags, std::string::npos);
  bytes.replace(flags, 15, "#FALSE#\r\n#TRUE#");
  const std::string dos = testing::tempPath("opcion2.txt");
  testing::writeBytes(dos, bytes);
  out = transcript("control-variables " + dos + " --grafico desviaciones");
  EXPECT_EQ(out.substr(0, 11), "[salida 2]\n");
  EXPECT_NE(out.find("«Control de Desviaciones Típicas»"), std::string::npos) << out;
  EXPECT_EQ(transcript("control-variables " + dos + " --grafico recorridos --print"), error91);
  // Option2 in control shows both buttons.
  out = transcript("control-variables " + ex + "cuarenta-y-cinco.txt --grafico desviaciones");
  EXPECT_NE(out.find("Smedia:"), std::string::npos) << out;
}

TEST(CommandLine, WritesThePrintedPageAsPdf) {
  const std::string pdf = testing::tempPath("cep.pdf");
  const std::string example = std::string(VOREL_SOURCE_DIR) + "/examples/cep/libro.txt";
  const std::string out = transcript("cep '" + example + "' --pdf '" + pdf + "'");
#ifdef VOREL_PDF
  EXPECT_EQ(out, "");
  EXPECT_EQ(testing::readBytes(pdf).substr(0, 5), "%PDF-");
  // Every word, the rule included, ends inside the right margin of the A4 page.
  FILE* words = popen(("pdftotext -bbox '" + pdf + "' -").c_str(), "r");
  double right = 0, xMax = 0;
  char line[512];
  while (fgets(line, sizeof line, words))
    if (const char* at = std::strstr(line, "xMax=\""); at && std::sscanf(at, "xMax=\"%lf", &xMax))
      right = std::max(right, xMax);
  pclose(words);
  EXPECT_GT(right, 500);
  EXPECT_LE(right, 595.3 - 6 / 25.4 * 72);
  // A disk that takes nothing: the failed write is told, not passed over.
  const std::string full = transcript("cep '" + example + "' --pdf /dev/full");
  EXPECT_EQ(full.substr(0, 11), "[salida 2]\n");
  EXPECT_NE(full.find("\nNo se pudo escribir el PDF: /dev/full\n"), std::string::npos) << full;
#else
  EXPECT_NE(out.find("[salida 2]\nEsta versión de vorel-report se construyó sin la biblioteca"),
            std::string::npos);
#endif
}

}  // namespace
}  // namespace vorel
