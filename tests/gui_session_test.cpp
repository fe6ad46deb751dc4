// What the desktop gives every screen: file dialogs that show every file, Qt's
// dialogs in Spanish, a printer that always has somewhere to write, and prints
// that survive however the process ends.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QListView>
#include <QProcess>
#include <QTest>
#include <csignal>

#include "frame/gui/session.h"
#include "tests/gui_support.h"
#include "tests/test_support.h"

namespace vorel {
namespace {

using namespace testing;

TEST(Desktop, AbrirListsFilesWithoutExtensionUnderTheGivenLabel) {
  const QString folder = QString::fromStdString(tempPath("abrir"));
  QDir().mkpath(folder);
  writeBytes((folder + "/Problema1").toStdString(), "\"Problema1\"\r\n");
  auto dialog = gui::fileDialog(QFileDialog::AcceptOpen, gui::kOpenFilter, 2);
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  dialog->setDirectory(folder);
  dialog->show();
  auto* files = dialog->findChild<QListView*>(QStringLiteral("listView"));
  ASSERT_NE(files, nullptr);
  QTRY_COMPARE(files->model()->rowCount(files->rootIndex()), 1);
  EXPECT_EQ(files->model()->index(0, 0, files->rootIndex()).data().toString(), "Problema1");
  auto* filter = dialog->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
  ASSERT_NE(filter, nullptr);
  EXPECT_EQ(filter->currentText(), "All Files (*.*)");
  EXPECT_EQ(gui::dialogFilters(gui::kSaveFilter),
            QStringList({"All Files (*.*) (*)", "Text Files (*.txt) (*)"}));
}

TEST(Desktop, QtDialogsSpeakSpanish) {
  ASSERT_TRUE(gui::loadSpanishDialogs(*qApp));
  EXPECT_EQ(QCoreApplication::translate("QFileDialog", "File &name:"), "&Nombre de fichero:");
  EXPECT_EQ(QCoreApplication::translate("QPrintDialog", "Print"), "Imprimir");
}

TEST(Desktop, APdfOnlyPrinterWritesToTheDocumentsFolderUnderTheModelsName) {
  const QByteArray home = qgetenv("HOME");
  qputenv("HOME", QByteArray::fromStdString(tempPath("home")));
  const QDateTime when(QDate(2026, 11, 23), QTime(10, 15));
  const QString first = gui::defaultPdfPath("GI_CantidadEconómicaPedido", when);
  EXPECT_TRUE(first.endsWith("/Documents/Vorel-GI_CantidadEconómicaPedido-2026-11-23-1015.pdf"))
      << first.toStdString();
  writeBytes(first.toStdString(), "%PDF-");
  EXPECT_TRUE(gui::defaultPdfPath("GI_CantidadEconómicaPedido", when).endsWith("1015-2.pdf"));

  QPrinter pdf, chosen;
  pdf.setOutputFormat(QPrinter::PdfFormat);
  gui::giveDefaultPdfFile(pdf, "PL_Simplex");
  EXPECT_TRUE(QFileInfo(pdf.outputFileName()).fileName().startsWith("Vorel-PL_Simplex-"));
  chosen.setOutputFormat(QPrinter::PdfFormat);
  chosen.setOutputFileName("/tmp/elegido.pdf");
  gui::giveDefaultPdfFile(chosen, "PL_Simplex");
  EXPECT_EQ(chosen.outputFileName(), "/tmp/elegido.pdf");
  qputenv("HOME", home);
}

TEST(Desktop, EndedBySignalThePrintsStillReachTheFile) {
  for (int signal : {SIGTERM, SIGHUP}) {
    const QString pdf = QString::fromStdString(tempPath("senal.pdf"));
    QProcess probe;
    probe.start(QStringLiteral(VOREL_PRINT_PROBE), {pdf});
    ASSERT_TRUE(probe.waitForReadyRead(20000));
    EXPECT_EQ(probe.readAllStandardOutput().trimmed(), "listo");
    ::kill(static_cast<pid_t>(probe.processId()), signal);
    ASSERT_TRUE(probe.waitForFinished(20000));
    EXPECT_EQ(probe.exitCode(), 128 + signal);
    EXPECT_EQ(pdfPages(pdf), 2);
    const std::string text = pdfText(pdf);
    EXPECT_NE(text.find("primera, línea 1"), std::string::npos);
    EXPECT_NE(text.find("segunda, línea 40"), std::string::npos);
  }
}

}  // namespace
}  // namespace vorel
