// Spreadsheet text: blocks read as spreadsheets copy them, and the refusal of
// a block that runs past the table.
#include "frame/spreadsheet.h"

#include <gtest/gtest.h>

namespace vorel {
namespace {

TEST(SpreadsheetText, RowsAtLineEndsColumnsAtTabsOneTrailingLineEndClosesTheLastRow) {
  EXPECT_EQ(parseBlock("1\t2\r\n3\t4\r\n"), (Block{{"1", "2"}, {"3", "4"}}));
  EXPECT_EQ(parseBlock("1\t2\n3\t4"), (Block{{"1", "2"}, {"3", "4"}}));
  EXPECT_EQ(parseBlock("1\r2\r"), (Block{{"1"}, {"2"}}));
  EXPECT_EQ(parseBlock("2,5\t\t-3\n\n"), (Block{{"2,5", "", "-3"}, {""}}));
  EXPECT_EQ(parseBlock("7\n"), (Block{{"7"}}));
  EXPECT_EQ(parseBlock("\n"), (Block{{""}}));
  EXPECT_EQ(parseBlock("Año\t"), (Block{{"Año", ""}}));
  EXPECT_TRUE(parseBlock("").empty());
  EXPECT_EQ(blockText(Block{{"1", ""}, {"a b", "2,5"}}), "1\t\na b\t2,5\n");
  EXPECT_EQ(blockWidth(Block{{"1"}, {"1", "2", "3"}, {}}), 3);
}

TEST(SpreadsheetText, ABlockPastTheTableIsRefusedWithWhatItNeeds) {
  const Block twoByThree{{"1", "2", "3"}, {"4", "5"}};
  EXPECT_EQ(pasteRefusal(twoByThree, 1, 2, 3, 5, true), "");
  EXPECT_EQ(pasteRefusal(twoByThree, 2, 2, 3, 5, true),
            "El bloque copiado tiene 2 filas y 3 columnas y no cabe en la tabla desde esta "
            "casilla: hacen falta 4 filas y 5 columnas de casillas, y la tabla muestra 3 filas y "
            "5 columnas. Elija un tamaño mayor, pulse Rediseñar y pegue de nuevo. No se ha pegado "
            "nada.");
  EXPECT_EQ(pasteRefusal(Block{{"1", "2"}}, 0, 1, 4, 2, false),
            "El bloque copiado tiene 1 fila y 2 columnas y no cabe en la tabla desde esta "
            "casilla, donde caben 4 filas y 1 columna. No se ha pegado nada.");
}

}  // namespace
}  // namespace vorel
