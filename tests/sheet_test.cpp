// Window schedules: their scales, pages and places.
#include "lintavo/drawing/Sheet.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/api/CFeApi.h"

#include "support/PictureFile.h"
#include "support/Szene.h"

namespace lintavo::drawing {
namespace {

using namespace lintavo::testing;

std::vector<SvgFile> Draw(const std::vector<SheetEntry>& entries, const SheetOptions& options) {
  Sheet sheet;
  EXPECT_EQ(RenderSheet(entries, PictureFormat::kSvg, sheet, options), PictureStatus::kOk);
  std::vector<SvgFile> pages;
  for (const std::string& file : sheet.files) pages.push_back(ParseSvg(file));
  return pages;
}

std::string TextsOf(const SvgFile& page) {
  std::string texts;
  for (const auto& element : page.elements) texts += element.text + '|';
  return texts;
}

bool Says(const SvgFile& page, const std::string& text) {
  return TextsOf(page).find(text) != std::string::npos;
}

TEST(Sheet, PutsEveryWindowOnAPageOnceAndToScale) {
  // 100 x 130 cm: at 1:25 drawn 40 x 52 mm. An A4 page is 186 mm wide between its margins:
  // two or three of them in a row, so thirteen take more than one page.
  const CFeApi window = Example("drehkipp_einfluegelig");
  SheetOptions options;
  options.plan.scale = 25.0;
  const std::vector<SvgFile> pages =
      Draw(std::vector<SheetEntry>(13, SheetEntry{&window, "", ""}), options);
  ASSERT_GT(pages.size(), 1u);
  std::vector<std::string> ids;
  for (const SvgFile& page : pages) {
    EXPECT_TRUE(page.wellFormed);
    EXPECT_EQ(page.viewBox, "0 0 210 297");
    EXPECT_GE(page.left, 12.0);
    EXPECT_LE(page.right, 198.0);
    EXPECT_GE(page.top, 12.0);
    EXPECT_LE(page.bottom, 285.0);
    EXPECT_TRUE(Says(page, "Maßstab 1:25 · Blatt"));
    for (const auto& element : page.elements) {
      if (element.klass != "umriss") continue;
      ids.push_back(element.groups.back());
      double x[4];
      double y[4];
      ASSERT_EQ(std::sscanf(element.look.at("d").c_str(), "M%lf %lf %lf %lf %lf %lf", &x[0], &y[0],
                            &x[1], &y[1], &x[2], &y[2]),
                6);
      EXPECT_NEAR(*std::max_element(x, x + 3) - *std::min_element(x, x + 3), 40.0, 0.01);
      EXPECT_NEAR(*std::max_element(y, y + 3) - *std::min_element(y, y + 3), 52.0, 0.01);
    }
  }
  std::sort(ids.begin(), ids.end());
  EXPECT_EQ(std::unique(ids.begin(), ids.end()) - ids.begin(), 13);
}

TEST(Sheet, WindowsShareAScaleAndOnesTooLargeHaveTheirOwn) {
  CFeApi small = Example("drehkipp_einfluegelig");
  CFeApi giant = Example("drehkipp_einfluegelig");
  ASSERT_EQ(giant.SetBreiteHoehe(CFeApiWandOeffnungsParameter(), 2e6, 1e6), 1);
  ASSERT_EQ(giant.Berechne(), 1);
  const std::vector<SvgFile> pages = Draw({{&small, "", ""}, {&giant, "", ""}}, SheetOptions());
  ASSERT_EQ(pages.size(), 1u);
  // 130 cm in a place of 67 mm less 20 around: 1:50. Twenty kilometres on 89 mm less 20.
  EXPECT_TRUE(Says(pages[0], "|Maßstab 1:50 · Blatt 1 von 1|")) << TextsOf(pages[0]);
  EXPECT_TRUE(Says(pages[0], "2000000 × 1000000 cm · Maßstab|1:1000000|")) << TextsOf(pages[0]);
}

TEST(Sheet, SaysWhatItShowsInEitherLanguage) {
  const CFeApi window = Example("dreiteilig_mit_oberlicht");
  const CFeApi empty;
  SheetOptions options;
  options.size = PageSize::kA3;
  options.landscape = true;
  std::vector<SheetEntry> entries{
      {&window, "", ""}, {nullptr, "T\xfcr.aqz", "Datei fehlt"}, {&empty, "leer.aqz", ""}};
  const SvgFile german = Draw(entries, options).at(0);
  EXPECT_EQ(german.viewBox, "0 0 420 297");
  for (const char* text : {"Fensterliste|", "240 × 175 cm", "Flügel 1: Drehkipp links;", "Tür.aqz|",
                           "Datei fehlt|", "nicht darstellbar|", "leer.aqz|"}) {
    EXPECT_TRUE(Says(german, text)) << text << " in " << TextsOf(german);
  }
  options.plan.language = Language::kEnglish;
  const SvgFile english = Draw(entries, options).at(0);
  for (const char* text :
       {"Window schedule|", "Sash 1: tilt and turn left;", "cannot be shown|", "Sheet 1 of 1|"}) {
    EXPECT_TRUE(Says(english, text)) << text << " in " << TextsOf(english);
  }
  Sheet sheet;
  ASSERT_EQ(RenderSheet(entries, PictureFormat::kDxf, sheet, options), PictureStatus::kOk);
  EXPECT_EQ(sheet.entries, (std::vector<PictureStatus>{PictureStatus::kOk, PictureStatus::kOk,
                                                       PictureStatus::kEmpty}));
  EXPECT_EQ(RenderSheet({}, PictureFormat::kSvg, sheet), PictureStatus::kEmpty);
  EXPECT_EQ(sheet.files.size(), 1u);
}

TEST(Sheet, PdfHoldsAllPages) {
  const CFeApi window = Example("drehkipp_einfluegelig");
  SheetOptions options;
  options.plan.scale = 10.0;  // 100 x 130 mm and two to a page
  Sheet sheet;
  ASSERT_EQ(RenderSheet(std::vector<SheetEntry>(4, SheetEntry{&window, "", ""}),
                        PictureFormat::kPdf, sheet, options),
            PictureStatus::kOk);
  ASSERT_EQ(sheet.files.size(), 1u);
  EXPECT_EQ(sheet.files[0].find("/Count 1"), std::string::npos);
}

}  // namespace
}  // namespace lintavo::drawing
