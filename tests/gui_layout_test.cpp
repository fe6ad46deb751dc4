// The line balancing screen driven offscreen: abrir of a problem, whose file
// keeps no shape, leaves the table as it was until RediseñarTabla (the shapes
// Rediseñar gives each layout table: layout.test.mjs).
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
