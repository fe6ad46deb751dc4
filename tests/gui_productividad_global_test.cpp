// Total productivity's entry screen: its parallel lists, the focus that brings
// a group to its row, and Resolver writing its results back.
#include <gtest/gtest.h>

#include <QListWidget>

#include "tests/gui_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "Productividad_Global";

class ProductividadGlobalScreens : public ScreenTest {
 protected:
  QListWidget* filas(const QString& lista) { return control<QListWidget>(kEntry, lista + "_filas"); }
  void fila(const QStringList& valores) {
    const char* nombres[] = {"CmbUFI0", "CmbPUI0", "CmbUFI1", "CmbUFO0", "CmbPUO0", "CmbUFO1"};
    for (int k = 0; k < 6; ++k) type(kEntry, nombres[k], valores[k]);
    press(kEntry, "AÑADIR");
  }
  void pulsar(const QString& lista, int row) {
    QListWidget* list = filas(lista);
    list->setCurrentRow(row);
    emit list->itemClicked(list->item(row));
  }
};

TEST_F(ProductividadGlobalScreens, ListsGrowRowByRowAndAClickBringsTheGroupToOneRow) {
  screens().show(kEntry);
  fila({"1000", "12", "1100", "200", "90", "230"});
  fila({"500", "4", "", "100", "50", "95"});  // no units of year 1: refused, focus on its text
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(focused(kEntry), "CmbUFI1");
  type(kEntry, "CmbUFI1", "450");
  press(kEntry, "AÑADIR");
  EXPECT_EQ(filas("CmbPUI0")->count(), 2);
  EXPECT_EQ(text(kEntry, "TxtFT"), "2");
  EXPECT_EQ(text(kEntry, "CmbUFO1"), "");

  pulsar("CmbPUO0", 1);
  EXPECT_EQ(text(kEntry, "CmbUFO0"), "100");
  EXPECT_EQ(filas("CmbUFO1")->currentRow(), 1);
  EXPECT_EQ(text(kEntry, "TxtProd"), "2");

  // The focus on an input list with a row in hand puts the inputs in hand:
  // eliminar then removes the input row, not the output one clicked last.
  pulsar("CmbUFI0", 0);
  pulsar("CmbUFO0", 1);
  control<QWidget>(kEntry, "CmbUFI1")->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(text(kEntry, "TxtFact"), "1");
  press(kEntry, "eliminar");
  EXPECT_EQ(filas("CmbUFI1")->count(), 1);
  EXPECT_EQ(filas("CmbUFO1")->count(), 2);
  EXPECT_EQ(text(kEntry, "TxtFT"), "1");

  press(kEntry, "Resolver");
  EXPECT_TRUE(visible("Productividad_Global_Solucion"));
  EXPECT_EQ(text(kEntry, "PO"), "11.5");  // 23000 / 2000, in the box of the entry
}

}  // namespace
}  // namespace vorel::testing
