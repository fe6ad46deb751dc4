// Total productivity's entry screen: its parallel lists and their commands.
#include <gtest/gtest.h>

#include <QComboBox>

#include "tests/gui_support.h"

namespace vorel::testing {
namespace {

const std::string kEntry = "Productividad_Global";

class ProductividadGlobalScreens : public ScreenTest {
 protected:
  QComboBox* lista(const char* name) { return control<QComboBox>(kEntry, name); }
  void fila(const QStringList& valores) {
    const char* nombres[] = {"CmbUFI0", "CmbPUI0", "CmbUFI1", "CmbUFO0", "CmbPUO0", "CmbUFO1"};
    for (int k = 0; k < 6; ++k) lista(nombres[k])->setEditText(valores[k]);
    press(kEntry, "AÑADIR");
  }
};

TEST_F(ProductividadGlobalScreens, ListsGrowRowByRowAndAClickBringsTheGroupToOneRow) {
  screens().show(kEntry);
  fila({"1000", "12", "1100", "200", "90", "230"});
  fila({"500", "4", "", "100", "50", "95"});  // no units of year 1: refused, focus on the box
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(focused(kEntry), "CmbUFI1");
  lista("CmbUFI1")->setEditText("450");
  press(kEntry, "AÑADIR");
  EXPECT_EQ(lista("CmbPUI0")->count(), 2);
  EXPECT_EQ(text(kEntry, "TxtFT"), "2");
  EXPECT_EQ(lista("CmbUFO1")->currentText(), "");

  QComboBox* precio = lista("CmbPUO0");
  precio->setCurrentIndex(1);
  emit precio->activated(1);
  EXPECT_EQ(lista("CmbUFO0")->currentText(), "100");
  EXPECT_EQ(lista("CmbUFO1")->currentIndex(), 1);
  EXPECT_EQ(text(kEntry, "TxtProd"), "2");

  press(kEntry, "Resolver");
  EXPECT_EQ(text(kEntry, "PO"), "1.642857");  // Resolver fills the boxes of the results
  EXPECT_TRUE(visible("Productividad_Global_Solucion"));
  press("Productividad_Global_Solucion", "volver");
  press(kEntry, "eliminar");  // the outputs' row in hand goes
  EXPECT_EQ(lista("CmbUFO1")->count(), 1);
  EXPECT_EQ(lista("CmbUFI1")->count(), 2);
  EXPECT_EQ(text(kEntry, "TxtPT"), "1");
}

}  // namespace
}  // namespace vorel::testing
