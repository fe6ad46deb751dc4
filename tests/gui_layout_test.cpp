// The facility layout screens driven offscreen: what RediseñarTabla shows on
// each entry, and abrir of a line balancing problem, whose file keeps no
// shape, leaving the table as it was.
#include <gtest/gtest.h>

#include <QComboBox>

#include "tests/gui_support.h"

namespace vorel::testing {
namespace {

class LayoutScreens : public ScreenTest {
 protected:
  void expectShown(const std::string& entry, std::initializer_list<const char*> names, bool on) {
    for (const char* name : names) EXPECT_EQ(shown(entry, name), on) << name;
  }
};

TEST_F(LayoutScreens, CargaDistanciaReshapesRoutesAndBothBlocksOfDistances) {
  const std::string entry = "Distribucion_CargaDistancia";
  screens().show(entry);
  expectShown(entry, {"C3(4)", "Produccion(2)", "D1(2)", "Distancias(2)", "LblDepartamentos(0)"},
              true);
  expectShown(entry, {"C4(0)", "LblActividades(3)", "D2(3)", "Lbldistancias(1)"}, false);
  control<QComboBox>(entry, "NumActividades")->setCurrentIndex(4);
  control<QComboBox>(entry, "NumDistancias")->setCurrentIndex(9);
  press(entry, "RediseñarTabla");
  expectShown(entry, {"C5(4)", "LblActividades(4)", "D2(9)", "Lbldistancias(1)"}, true);
  expectShown(entry, {"C6(0)", "Produccion(5)", "Distancias(10)"}, false);
  EXPECT_EQ(focused(entry), "C1(0)");
}

TEST_F(LayoutScreens, EquilibradoShowsActivitiesEightOnInTheLowerRows) {
  const std::string entry = "Distribucion_Equlibrado";
  screens().show(entry);
  expectShown(entry, {"C5(4)", "TiempoOperacion(4)", "LblActividades(4)"}, true);
  expectShown(entry, {"C6(0)", "C1(5)", "TiempoOperacion(5)"}, false);
  openFile(entry, examplePath("equilibrado", "libro.txt"));
  EXPECT_EQ(control<QComboBox>(entry, "NumActividades")->currentText(), "12");
  expectShown(entry, {"C6(0)", "C5(5)"}, false);  // abrir leaves the shape
  press(entry, "RediseñarTabla");
  expectShown(entry, {"C7(4)", "C5(9)", "TiempoOperacion(11)", "LblActividades(11)"}, true);
  expectShown(entry, {"C6(5)", "TiempoOperacion(12)"}, false);
  EXPECT_EQ(focused(entry), "TiempoOperacion(0)");
}

}  // namespace
}  // namespace vorel::testing
