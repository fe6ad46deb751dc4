#include "decision/incertidumbre.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "frame/arith.h"
#include "tests/test_support.h"

namespace vorel::decision {
namespace {

using Tabla = std::vector<std::vector<std::string>>;  // [alternative][state]

// A problem typed as a user would: choose the sizes, reshape, fill the cells.
IncertidumbreFields problema(const Tabla& resultados, const std::string& alfa = "") {
  IncertidumbreFields f;
  const int na = static_cast<int>(resultados.size());
  const int ne = static_cast<int>(resultados[0].size());
  f.NumAlternativas = na - 1;
  f.NumEstados = ne - 1;
  EXPECT_TRUE(rediseñar(f).empty());
  for (int a = 0; a < na; ++a)
    for (int s = 0; s < ne; ++s) f.C[s][a].text = resultados[a][s];
  f.Alfa = alfa;
  return f;
}

IncertidumbreFields libro() {
  return problema({{"20", "12", "8", "4"},
                   {"16", "14", "10", "6"},
                   {"12", "12", "12", "6"},
                   {"24", "10", "2", "0"}},
                  "0.4");
}

std::vector<int> elegidas(const IncertidumbreResults& r, const std::array<int, 7>& sel) {
  std::vector<int> out;
  for (int a = 0; a < r.na; ++a)
    if (sel[a] == 1) out.push_back(a + 1);
  return out;
}

TEST(Incertidumbre, ChecksRunRowByRowAndTheFirstFailureEnds) {
  const std::string rango2 =
      "El valor de los resultados no es correcto, debe introducir un valor comprendido entre "
      "-999999999 y 999999999";
  struct Case {
    const char* name;
    void (*edit)(IncertidumbreFields&);
    std::string message;
  } cases[] = {
      {"1 C1 vacía, con el blanco final", [](IncertidumbreFields& f) { f.C[0][3].text = ""; },
       "Debe completar la tabla de resultados "},
      {"2 C1 fuera de rango, con la errata",
       [](IncertidumbreFields& f) { f.C[0][0].text = "1000000000"; },
       "El valor de los resulatdos no es correcto, debe introducir un valor comprendido entre "
       "-999999999 y 999999999"},
      {"3 C4 no numérica", [](IncertidumbreFields& f) { f.C[3][2].text = "x"; },
       "Debe completar la tabla de resultados"},
      {"4 C2 fuera de rango", [](IncertidumbreFields& f) { f.C[1][1].text = "-1e9"; }, rango2},
      {"fila antes que columna: C4(0) antes que C1(1)",
       [](IncertidumbreFields& f) {
         f.C[3][0].text = "x";
         f.C[0][1].text = "";
       },
       "Debe completar la tabla de resultados"},
      {"la tabla antes que Alfa",
       [](IncertidumbreFields& f) {
         f.C[2][3].text = "2e9";
         f.Alfa = "7";
       },
       rango2},
      {"5 Alfa sobre 1", [](IncertidumbreFields& f) { f.Alfa = "1.5"; },
       "El valor del coeficiente de optimismo no es correcto, debe introducir un valor "
       "comprendido entre 0 y 1"},
      {"5 Alfa negativa", [](IncertidumbreFields& f) { f.Alfa = "-0.01"; },
       "El valor del coeficiente de optimismo no es correcto, debe introducir un valor "
       "comprendido entre 0 y 1"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    IncertidumbreFields f = libro();
    c.edit(f);
    EXPECT_EQ(check(f), (Messages{{c.message, ""}}));
  }
}

TEST(Incertidumbre, AlfaIsOptionalAndHiddenCellsAreNotLookedAt) {
  for (const char* alfa : {"", "abc", "0", "1", "1e-1", " .5"}) {
    IncertidumbreFields f = libro();
    f.Alfa = alfa;
    f.C[4][0].text = "oculta";
    f.C[0][4].text = "oculta";
    f.C[0][0].text = "-999999999";
    f.C[1][0].text = "999999999";
    EXPECT_TRUE(check(f).empty()) << alfa;
  }
}

TEST(Incertidumbre, CriteriaSelectTheirAlternatives) {
  struct Case {
    const char* name;
    IncertidumbreFields fields;
    std::vector<int> wald, maximax, savage, laplace, hurwicz;
  } cases[] = {
      {"libro", libro(), {2, 3}, {4}, {1}, {2}, {4}},
      {"una alternativa", problema({{"-5", "10", "2.5"}}, "0.5"), {1}, {1}, {1}, {1}, {1}},
      {"un estado", problema({{"3"}, {"5"}, {"5"}}, "0"), {2, 3}, {2, 3}, {2, 3}, {2, 3}, {2, 3}},
      {"empates en orden ascendente",
       problema({{"1", "5"}, {"2", "4"}, {"1", "5"}, {"2", "4"}}, "0.5"),
       {2, 4},
       {1, 3},
       {1, 2, 3, 4},
       {1, 2, 3, 4},
       {1, 2, 3, 4}},
      {"una mejor más tarde borra las anteriores",
       problema({{"1", "9"}, {"1", "9"}, {"2", "10"}}, "0.3"),
       {3},
       {3},
       {3},
       {3},
       {3}},
      {"Laplace exacto: la misma media por otras sumas no empata",
       problema({{"1", "1", "1", "1", "1", "1", "1"}, {"7", "0", "0", "0", "0", "0", "0"}}, "1"),
       {1},
       {2},
       {2},
       {2},
       {1}},
      {"Laplace exacto con tres estados",
       problema({{"0.1", "0.2", "0"}, {"0.3", "0", "0"}}, ""),
       {1, 2},
       {2},
       {1},
       {1},
       {}},
      {"alfa 0 es maximax", problema({{"0", "10"}, {"4", "5"}}, "0"), {2}, {1}, {1}, {1}, {1}},
      {"alfa 1 es Wald", problema({{"0", "10"}, {"4", "5"}}, "1"), {2}, {1}, {1}, {1}, {2}},
      {"alfa pesa el peor resultado",
       problema({{"0", "10"}, {"4", "5"}}, "0.25"),
       {2},
       {1},
       {1},
       {1},
       {1}},
      {"alfa 0.8 elige la prudente",
       problema({{"0", "10"}, {"4", "5"}}, "0.8"),
       {2},
       {1},
       {1},
       {1},
       {2}},
      {"sin alfa numérico nada se elige por Hurwicz",
       problema({{"0", "10"}, {"4", "5"}}, "abc"),
       {2},
       {1},
       {1},
       {1},
       {}},
  };
  for (Case& c : cases) {
    SCOPED_TRACE(c.name);
    ASSERT_TRUE(check(c.fields).empty());
    const IncertidumbreResults r = solve(c.fields);
    EXPECT_EQ(elegidas(r, r.SelWald), c.wald);
    EXPECT_EQ(elegidas(r, r.SelMaximax), c.maximax);
    EXPECT_EQ(elegidas(r, r.SelSavage), c.savage);
    EXPECT_EQ(elegidas(r, r.SelLaplace), c.laplace);
    EXPECT_EQ(elegidas(r, r.SelHurwicz), c.hurwicz);
  }
}

TEST(Incertidumbre, ValuesOfTheCriteria) {
  const IncertidumbreResults r = solve(libro());
  EXPECT_EQ(r.MejorEstado[0], 24);
  EXPECT_EQ(r.Arrepentimiento[2][3], 10);  // state 3, alternative 4: 12 - 2
  EXPECT_EQ(r.MaxArrepentimiento[0], 4);
  EXPECT_EQ(r.MaxArrepentimiento[2], 12);
  EXPECT_EQ(Str(r.ProbLaplace), " .25");
  EXPECT_EQ(r.ValorMedio[1], 11.5);
  EXPECT_EQ(Str(r.ValorHurwicz[0]), " 13.6");  // 0.4 of the worst, 4, and 0.6 of the best, 20

  const IncertidumbreResults uno = solve(problema({{"3"}, {"-2.5"}}, "0.5"));
  EXPECT_EQ(Str(uno.ProbLaplace), " 1");
  for (int a = 0; a < 2; ++a) {
    EXPECT_EQ(uno.Peor[a], uno.Mejor[a]);
    EXPECT_EQ(uno.ValorMedio[a], uno.Peor[a]);
  }

  for (const char* alfa : {"0", "1"}) {
    const IncertidumbreResults h = solve(problema({{"-3", "7", "2"}, {"1", "4", "0.5"}}, alfa));
    for (int a = 0; a < 2; ++a)
      EXPECT_EQ(h.ValorHurwicz[a], alfa[0] == '0' ? h.Mejor[a] : h.Peor[a]) << alfa;
  }

  const IncertidumbreResults sin = solve(problema({{"5", "6"}}, "abc"));
  EXPECT_FALSE(sin.hurwicz);
  EXPECT_EQ(sin.ValorHurwicz[0], 0.0);
  EXPECT_EQ(sin.alfa, "");
}

TEST(Incertidumbre, ButtonsVisibleOnEachPage) {
  struct Case {
    Navegacion estado;
    Botones botones;
  } cases[] = {
      {{Pagina::Wald, false}, {.forward1 = true, .volver = true}},
      {{Pagina::Wald, true}, {.forward1 = true, .volver = true}},
      {{Pagina::Maximax, false}, {.Back1 = true, .forward2 = true}},
      {{Pagina::SavageLaplace, true}, {.Continuar1 = true, .Continuar2 = true}},
      {{Pagina::SavageLaplace, false}, {.NoContinuar = true}},
      {{Pagina::Hurwicz, false}, {.NoContinuar2 = true}},
  };
  for (const Case& c : cases)
    EXPECT_EQ(botonesVisibles(c.estado), c.botones) << int(c.estado.pagina);
  EXPECT_EQ(Navegacion{}, (Navegacion{Pagina::Wald, false}));  // every activation starts here
}

TEST(Incertidumbre, EachClickGoesWhereItsButtonLeads) {
  const Navegacion wald{Pagina::Wald, false}, maximax{Pagina::Maximax, false},
      conAlfa{Pagina::SavageLaplace, true}, sinAlfa{Pagina::SavageLaplace, false},
      hurwicz{Pagina::Hurwicz, false};
  struct Case {
    Navegacion desde;
    Boton boton;
    const char* alfa;
    Navegacion hasta;
  } cases[] = {
      {wald, Boton::forward1, "0.5", maximax},
      {maximax, Boton::Back1, "0.5", wald},
      {maximax, Boton::forward2, "0.5", conAlfa},
      {maximax, Boton::forward2, "abc", sinAlfa},
      {maximax, Boton::forward2, "", sinAlfa},
      {conAlfa, Boton::Continuar1, "0.5", hurwicz},
      {conAlfa, Boton::Continuar1, "abc", hurwicz},  // only the arrival on Savage tests Alfa
      {conAlfa, Boton::Continuar2, "0.5", maximax},
      {sinAlfa, Boton::NoContinuar, "", maximax},
      {hurwicz, Boton::NoContinuar2, "0.5", conAlfa},
      {hurwicz, Boton::NoContinuar2, "x", sinAlfa},  // Alfa is read at the click
      // Hidden buttons cannot be clicked.
      {wald, Boton::Back1, "0.5", wald},
      {wald, Boton::forward2, "0.5", wald},
      {maximax, Boton::forward1, "0.5", maximax},
      {sinAlfa, Boton::Continuar1, "0.5", sinAlfa},
      {conAlfa, Boton::NoContinuar, "0.5", conAlfa},
      {hurwicz, Boton::Back1, "0.5", hurwicz},
  };
  for (const Case& c : cases) {
    IncertidumbreFields f = libro();
    f.Alfa = c.alfa;
    EXPECT_EQ(pulsar(c.desde, c.boton, f), c.hasta)
        << int(c.desde.pagina) << " " << int(c.boton) << " " << c.alfa;
  }
}

// Text of a line: blanks up to `column`, then the text.
std::string at(int column, const std::string& text) { return std::string(column, ' ') + text; }
// A label at the first zone and a value at `column`.
std::string etiqueta(const std::string& label, int column, const std::string& value) {
  return at(14, label) + std::string(column - 14 - columns(label), ' ') + value;
}

TEST(Incertidumbre, BrowsingPageByPage) {
  IncertidumbreFields f = problema({{"10", "2"}, {"6", "5"}}, "0.5");
  f.Título = "Dos por dos";
  const IncertidumbreResults r = solve(f);
  const std::string blank = at(15, "") + "\n";
  const std::string rule = at(14, std::string(74, '_') + " ") + "\n";
  const std::string head =
      blank + blank + blank + blank + at(14, "Solución al problema: Dos por dos\n") + rule + blank;
  const std::string full = head + etiqueta("Numero de alternativas:", 56, "2") + "\n" +
                           etiqueta("Numero de estados de la naturaleza:", 56, "2") + "\n" + rule +
                           blank;
  auto alt = [](int n) { return at(14, "Alternativa " + std::to_string(n) + " \n"); };
  auto value = [](int n, const std::string& v) {
    return etiqueta("Alternativa " + std::to_string(n) + " :", 56, v) + "\n";
  };
  const std::map<Pagina, std::string> texts = {
      {Pagina::Wald, full + at(14, "CRITERIO DE WALD, MAXIMÍN O PESIMISTA\n") + "\n" +
                         at(14, "RESULTADO MÁS DESFAVORABLE PARA CADA ALTERNATIVA\n") + "\n" +
                         value(1, " 2") + value(2, " 5") + "\n" +
                         at(14, " ALTERNATIVAS SELECCIONADAS\n") + "\n" + alt(2)},
      {Pagina::Maximax, full + at(14, " CRITERIO MAXIMAX U OPTIMISTA\n") + "\n" +
                            at(14, "RESULTADO MÁS FAVORABLE PARA CADA ALTERNATIVA\n") + "\n" +
                            value(1, " 10") + value(2, " 6") + "\n" +
                            at(14, " ALTERNATIVAS SELECCIONADAS\n") + "\n" + alt(1)},
      {Pagina::SavageLaplace,
       head + at(14, "CRITERIO DE SAVAGE\n") + "\n" + at(14, "ALTERNATIVAS SELECCIONADAS\n") +
           "\n" + alt(1) + "\n" + rule + "\n" + at(14, "CRITERIO DE LAPLACE\n") + "\n" +
           etiqueta("Probabilidad de Laplace", 56, " .5") + "\n" + "\n" +
           at(14, " VALORES MEDIOS DE LAS ALTERNATIVAS\n") + "\n" + value(1, " 6") +
           value(2, " 5.5") + "\n" + at(14, "ALTERNATIVAS SELECCIONADAS\n") + "\n" + alt(1)},
      {Pagina::Hurwicz, full + at(14, "CRITERIO DE HURWICZ\n") + "\n" +
                            etiqueta("ALFA:", 42, "0.5") + "\n" + "\n" +
                            at(14, "COEFICIENTE DE OPTIMISMO DE LAS ALTERNATIVAS\n") + "\n" +
                            etiqueta("Alternativa: 1 :", 42, " 6") + "\n" +
                            etiqueta("Alternativa: 2 :", 42, " 5.5") + "\n" + "\n" +
                            at(14, "ALTERNATIVAS SELECCIONADAS\n") + "\n" + alt(1)},
  };
  EXPECT_EQ(renderText(report(f, r)), texts.at(Pagina::Wald));  // painted at activation

  // A walk over every page and back, each click rewriting the page.
  const std::vector<std::pair<Boton, Pagina>> walk = {
      {Boton::forward1, Pagina::Maximax},   {Boton::forward2, Pagina::SavageLaplace},
      {Boton::Continuar1, Pagina::Hurwicz}, {Boton::NoContinuar2, Pagina::SavageLaplace},
      {Boton::Continuar2, Pagina::Maximax}, {Boton::Back1, Pagina::Wald},
  };
  Navegacion estado;
  for (const auto& [boton, destino] : walk) {
    estado = pulsar(estado, boton, f);
    ASSERT_EQ(estado.pagina, destino) << int(boton);
    EXPECT_EQ(renderText(pagina(f, r, estado.pagina)), texts.at(destino)) << int(destino);
    EXPECT_EQ(botonesVisibles(estado).volver, destino == Pagina::Wald);
  }
}

TEST(Incertidumbre, PrintedPageHoldsEveryCriterionAndAlwaysHurwicz) {
  IncertidumbreFields f = problema({{"10", "2"}, {"6", "5"}}, "abc");
  const std::string page = renderText(printout(f, solve(f)));
  EXPECT_EQ(page.find(std::string(65, '_')), std::string::npos);
  // The sections in order.
  std::size_t from = 0;
  for (const char* section : {"CRITERIO DE WALD", "CRITERIO MAXIMAX", "CRITERIO DE SAVAGE",
                              "CRITERIO DE LAPLACE", "CRITERIO DE HURWICZ"}) {
    const std::size_t found = page.find(section, from);
    ASSERT_NE(found, std::string::npos) << section;
    from = found;
  }
  // Without a numeric Alfa the section stands empty: no value, zeros, no choice.
  EXPECT_TRUE(page.ends_with(at(14, "CRITERIO DE HURWICZ\n") + "\n" + at(14, "ALFA:\n") + "\n" +
                             at(14, "COEFICIENTE DE OPTIMISMO DE LAS ALTERNATIVAS\n") + "\n" +
                             etiqueta("Alternativa: 1 :", 42, " 0") + "\n" +
                             etiqueta("Alternativa: 2 :", 42, " 0") + "\n" + "\n" +
                             at(14, "ALTERNATIVAS SELECCIONADAS\n") + "\n"))
      << page;
  f.Alfa = "0.5";
  EXPECT_NE(renderText(printout(f, solve(f))).find(etiqueta("ALFA:", 42, "0.5") + "\n"),
            std::string::npos);
}

TEST(Incertidumbre, RediseñarAndNuevo) {
  IncertidumbreFields f;
  f.C[6][6].text = "guardado";
  f.NumAlternativas = 6;
  f.NumEstados = 0;
  EXPECT_TRUE(rediseñar(f).empty());
  for (int k = 0; k < 7; ++k) {
    EXPECT_EQ(f.LblEstados[k], k == 0);
    EXPECT_TRUE(f.LblAlternativas[k]);
    for (int i = 0; i < 7; ++i) EXPECT_EQ(f.C[k][i].visible, k == 0) << k << i;
  }
  EXPECT_EQ(f.C[6][6].text, "guardado");

  struct Case {
    int na, ne;
    const char* message;
  } empties[] = {
      {-1, -1, "Seleccione el número de estados"},
      {3, -1, "Seleccione el número de estados"},
      {-1, 3, "Seleccione el número de alternativas"},
  };
  for (const Case& c : empties) {
    IncertidumbreFields g;
    g.NumAlternativas = c.na;
    g.NumEstados = c.ne;
    EXPECT_EQ(rediseñar(g), (Messages{{c.message, ""}}));
  }

  f.Título = "Mío";
  f.Alfa = "0.3";
  nuevo(f);
  IncertidumbreFields fresh;
  fresh.Título = "Mío";
  ProblemFile a = ProblemFile::forWriting(), b = ProblemFile::forWriting();
  exchange(a, f);
  exchange(b, fresh);
  EXPECT_EQ(a.bytes(), b.bytes());
}

TEST(Incertidumbre, AnEmptyComboIsATypeMismatchWhenSolving) {
  IncertidumbreFields f = libro();
  f.NumEstados = -1;
  try {
    solve(f);
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& e) {
    EXPECT_EQ(e.number(), err::TypeMismatch);
  }
}

TEST(Incertidumbre, FileItemsInOrderAndRoundTrip) {
  IncertidumbreFields f = libro();
  f.Título = "Año";
  f.C[6][6].text = "oculta";
  ProblemFile out = ProblemFile::forWriting();
  exchange(out, f);
  const std::string bytes = out.bytes();
  const std::string head =
      "\"A\xF1o\"\r\n3\r\n3\r\n\"0.4\"\r\n#TRUE#\r\n\"20\"\r\n#TRUE#\r\n\"12\"\r\n#TRUE#\r\n";
  EXPECT_EQ(bytes.substr(0, head.size()), head);
  // Row 0: its state head, seven cells, then its alternative head.
  EXPECT_NE(
      bytes.find("\"4\"\r\n#TRUE#\r\n\"\"\r\n#FALSE#\r\n\"\"\r\n#FALSE#\r\n\"\"\r\n#FALSE#\r\n"
                 "#TRUE#\r\n#TRUE#\r\n\"16\""),
      std::string::npos);
  EXPECT_TRUE(bytes.ends_with("\"oculta\"\r\n#FALSE#\r\n#FALSE#\r\n"));
  std::size_t lines = 0;
  for (char c : bytes) lines += c == '\n';
  EXPECT_EQ(lines, 4u + 7u * (1 + 14 + 1));

  IncertidumbreFields back;
  ProblemFile in = ProblemFile::forReading(bytes);
  exchange(in, back);
  ProblemFile again = ProblemFile::forWriting();
  exchange(again, back);
  EXPECT_EQ(again.bytes(), bytes);
  EXPECT_EQ(back.Alfa, "0.4");
  EXPECT_EQ(back.C[6][6].text, "oculta");

  // A list index the combo does not have stops the read there.
  const std::string path = testing::tempPath("incertidumbre.txt");
  testing::writeBytes(path, "\"T\"\r\n1\r\n7\r\n\"0.5\"\r\n");
  IncertidumbreFields half;
  EXPECT_FALSE(openProblem(path, [&](ProblemFile& p) { exchange(p, half); }));
  EXPECT_EQ(half.Título, "T");
  EXPECT_EQ(half.NumEstados, 1);
  EXPECT_EQ(half.NumAlternativas, 3);
  EXPECT_EQ(half.Alfa, "");
}

}  // namespace
}  // namespace vorel::decision
