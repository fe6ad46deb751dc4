#include <gtest/gtest.h>

#include "frame/report.h"

namespace vorel {
namespace {

TEST(ReportText, ZoneStepsGoToTheNextZoneStrictlyAfter) {
  Report r;
  r.line(Z, "a");                        // a leading step gives one zone of margin
  r.line(Z, Z, "b");                     // two give two zones
  r.line("abc", Z, "d");                 // from inside a zone to the next start
  r.line("12345678901234", Z, "e");      // exactly at a zone start: the next one
  r.line("a very long item of text", Z, "f");  // longer than a zone
  r.line("x", "y", Z);                   // adjacent texts join; a trailing step prints nothing
  EXPECT_EQ(renderText(r),
            "              a\n"
            "                            b\n"
            "abc           d\n"
            "12345678901234              e\n"
            "a very long item of text    f\n"
            "xy\n");
}

TEST(ReportText, ContinuationGoesOnOnTheSameLine) {
  Report r;
  r.cont(Z, "Alternativa");
  r.cont(Z, "1");
  r.line(" fin");
  r.line("siguiente");
  EXPECT_EQ(renderText(r),
            "              Alternativa   1 fin\n"
            "siguiente\n");
}

TEST(ReportText, AccentedTextCountsCharactersNotBytes) {
  Report r;
  r.line("Título", Z, "x");
  r.line("ñññññññññññññ", Z, "y");
  EXPECT_EQ(renderText(r),
            "Título        x\n"
            "ñññññññññññññ y\n");
}

TEST(ReportText, FrameHeadingRuleAndPageHead) {
  Report r;
  r.blankLines(2).heading("Problema1");
  const std::string margin(14, ' ');
  EXPECT_EQ(renderText(r), margin + " \n" + margin + " \n" + margin +
                               "Solución al problema:  Problema1\n" + margin +
                               std::string(74, '_') + "  \n" + margin + " \n");
  Report page = pageHead("CANTIDAD ECONÓMICA DE PEDIDO", 4);
  ASSERT_EQ(page.statements().size(), 10u);
  EXPECT_EQ(renderText(page).substr(5 * 16), std::string(28, ' ') +
                                                 "CANTIDAD ECONÓMICA DE PEDIDO \n" +
                                                 margin + " \n" + margin + " \n" + margin +
                                                 " \n" + margin + " \n");
}

TEST(ReportLayout, MeasuresWithAnyWidth) {
  Report r;
  r.line(Z, "ab", "c", Z, "d");
  auto lines = layout(r, 70.0, [](const std::string& s) { return 6.5 * double(s.size()); });
  ASSERT_EQ(lines.size(), 1u);
  ASSERT_EQ(lines[0].size(), 2u);
  EXPECT_DOUBLE_EQ(lines[0][0].x, 70.0);
  EXPECT_EQ(lines[0][0].text, "abc");
  EXPECT_DOUBLE_EQ(lines[0][1].x, 140.0);
}

}  // namespace
}  // namespace vorel
