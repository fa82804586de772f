// Pictures of hand-made scenes, and the text that goes with them.
#include <algorithm>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lintavo/drawing/Picture.h"
#include "lintavo/drawing/Scene.h"
#include "lintavo/drawing/Text.h"

#include "support/PictureFile.h"

namespace lintavo::drawing {
namespace {

using lintavo::testing::ParsePng;
using lintavo::testing::ParseSvg;
using lintavo::testing::PngSize;

Scene RectangleScene(double width, double height) {
  Shape shape;
  shape.outline = {{0.0, 0.0}, {width, 0.0}, {width, height}, {0.0, height}};
  Scene scene;
  scene.name = "rectangle";
  scene.shapes.push_back(shape);
  return scene;
}

std::string Render(const Scene& scene, PictureFormat format) {
  std::string bytes;
  EXPECT_EQ(RenderPicture(scene, format, bytes), PictureStatus::kOk);
  return bytes;
}

TEST(Picture, PngIsAsLargeAsTheProportionsAsk) {
  // 1600 on the longer side, of it 64 margin on each end: 1472 for the window.
  const PngSize wide = ParsePng(Render(RectangleScene(200.0, 100.0), PictureFormat::kPng));
  EXPECT_EQ(wide.width, 1600u);
  EXPECT_EQ(wide.height, 1472u / 2 + 128u);
  const PngSize high = ParsePng(Render(RectangleScene(50.0, 200.0), PictureFormat::kPng));
  EXPECT_EQ(high.width, 1472u / 4 + 128u);
  EXPECT_EQ(high.height, 1600u);
}

TEST(Picture, SvgNamesShapesLinesAndTexts) {
  Scene scene = RectangleScene(200.0, 100.0);
  scene.shapes[0].bauteil = 2;
  scene.shapes.push_back(scene.shapes.front());
  scene.shapes.back().kind = ShapeKind::kGlas;
  scene.shapes.back().fluegel = 1;
  scene.lines.resize(3);
  scene.lines[0].to = scene.lines[1].to = scene.lines[2].to = {200.0, 100.0};
  scene.lines[0].kind = scene.lines[1].kind = LineKind::kOeffnungsSymbol;
  scene.lines[0].fluegel = scene.lines[1].fluegel = 1;
  scene.lines[1].dashed = true;
  scene.lines[2].kind = LineKind::kMaszLinie;
  scene.lines[2].masz = 0;
  scene.texts.push_back({0, {100.0, -20.0}, 5.0, false, "200.5"});
  const auto svg = ParseSvg(Render(scene, PictureFormat::kSvg));
  EXPECT_TRUE(svg.wellFormed);
  EXPECT_EQ(svg.root, "svg");
  EXPECT_EQ(svg.title, "rectangle");
  const auto frame = svg.First("rahmenteil");
  EXPECT_EQ(frame.id, "rahmen-2");
  EXPECT_EQ(frame.groups, (std::vector<std::string>{"fenster", "rahmen"}));
  EXPECT_EQ(svg.First("glas").id, "fluegel-1-fuellung");
  EXPECT_EQ(svg.First("symbol").groups.back(), "fluegel-1-symbol");
  EXPECT_EQ(svg.First("maszlinie").groups.back(), "masz-0");
  EXPECT_EQ(svg.First("masztext").text, "200,5");
  EXPECT_EQ(svg.Count(), 2 + 3 + 1);
  EXPECT_EQ(svg.Dashed(), 1);
}

TEST(Picture, NoTextBreaksASvg) {
  Scene scene = RectangleScene(200.0, 100.0);
  scene.name = "<B\xfcro> \"1\" & \x01\xff";
  const auto svg = ParseSvg(Render(scene, PictureFormat::kSvg));
  EXPECT_TRUE(svg.wellFormed);
  EXPECT_EQ(svg.title, "<B\xc3\xbcro> \"1\" &  \xc3\xbf");
}

TEST(Picture, TextsFillTheirBoxes) {
  // Five digits of 0.556 of the font's size, whose digits are 0.71 of it high.
  Scene scene;
  scene.texts.push_back({0, {7.0, 3.0}, 10.0, false, "80269"});
  Box box;
  ASSERT_TRUE(GetBox(scene, box));
  EXPECT_NEAR(box.top - box.bottom, 10.0, 1e-9);
  EXPECT_NEAR(box.right - box.left, 10.0 * 5 * 0.556 / 0.71, 1e-9);
  // Alone on the page it reaches from margin to margin, and stands upright in its middle.
  auto look = ParseSvg(Render(scene, PictureFormat::kSvg)).First("masztext").look;
  EXPECT_EQ(look["textLength"], "1472");
  EXPECT_EQ(look["x"], "800");
  EXPECT_EQ(look["text-anchor"], "middle");
  scene.texts[0].upright = true;
  look = ParseSvg(Render(scene, PictureFormat::kSvg)).First("masztext").look;
  EXPECT_EQ(look["textLength"], "1472");
  EXPECT_EQ(look["y"], "800");
  EXPECT_EQ(look["transform"].compare(0, 11, "rotate(-90 "), 0);
}

TEST(Picture, UpInTheWindowIsUpOnPaper) {
  Scene scene;
  scene.shapes.resize(1);
  scene.shapes[0].outline = {{0.0, 0.0}, {100.0, 0.0}, {50.0, 100.0}};
  const std::string svg = Render(scene, PictureFormat::kSvg);
  // The triangle's base lies below its apex: y grows downwards on paper.
  EXPECT_NE(svg.find("M64 1536 1536 1536 800 64Z"), std::string::npos) << svg;
}

TEST(Picture, ToScaleIsAsLargeAsThePaper) {
  // 200 cm at 1:20 are 100 mm, with margins of 10 on each side.
  PlanOptions plan;
  plan.scale = 20.0;
  Scene scene = RectangleScene(200.0, 100.0);
  scene.umriss = scene.shapes[0].outline;
  std::string bytes;
  ASSERT_EQ(RenderPicture(scene, PictureFormat::kSvg, bytes, {}, plan), PictureStatus::kOk);
  auto svg = ParseSvg(bytes);
  EXPECT_EQ(svg.width, "120mm");
  EXPECT_EQ(svg.viewBox, "0 0 120 70");
  EXPECT_EQ(svg.First("rahmenteil").look["d"], "M10 60 110 60 110 10 10 10Z");
  EXPECT_EQ(svg.First("umriss").look["stroke-width"], "0.5");
  // 120 mm at 254 pixels per inch.
  plan.dpi = 254.0;
  ASSERT_EQ(RenderPicture(scene, PictureFormat::kPng, bytes, {}, plan), PictureStatus::kOk);
  EXPECT_EQ(ParsePng(bytes).width, 1200u);
  plan.pixels = 333;
  ASSERT_EQ(RenderPicture(scene, PictureFormat::kPng, bytes, {}, plan), PictureStatus::kOk);
  EXPECT_EQ(ParsePng(bytes).width, 333u);
  // In metres the same numbers are a hundred times as large.
  plan.unit = LengthUnit::kMetre;
  EXPECT_EQ(RenderPicture(scene, PictureFormat::kSvg, bytes, {}, plan), PictureStatus::kTooLarge);
  EXPECT_NEAR(UnitsPerMillimetre(plan), 0.02, 1e-12);
}

TEST(Picture, PdfHasOnePage) {
  const std::string pdf = Render(RectangleScene(200.0, 100.0), PictureFormat::kPdf);
  EXPECT_EQ(pdf.compare(0, 5, "%PDF-"), 0);
  EXPECT_NE(pdf.find("/Count 1"), std::string::npos);
  EXPECT_NE(pdf.find("%%EOF"), std::string::npos);
}

TEST(Picture, ExtremeExtentsStayWithinThePaper) {
  struct Extent {
    double width;
    double height;
  };
  for (const Extent extent : {Extent{1e300, 1.0}, Extent{1.0, 1e300}, Extent{1e300, 1e300},
                              Extent{1e-200, 1e-200}, Extent{100.0, 0.0}}) {
    const PngSize size =
        ParsePng(Render(RectangleScene(extent.width, extent.height), PictureFormat::kPng));
    EXPECT_LE(size.width, 1600u);
    EXPECT_LE(size.height, 1600u);
    EXPECT_GE(std::min(size.width, size.height), 128u);
  }
}

TEST(Picture, RefusesWhatHasNoFiniteExtent) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  std::string bytes = "untouched";
  EXPECT_EQ(RenderPicture(Scene(), PictureFormat::kPng, bytes), PictureStatus::kEmpty);
  EXPECT_EQ(RenderPicture(RectangleScene(0.0, 0.0), PictureFormat::kPng, bytes),
            PictureStatus::kUnbounded);
  EXPECT_EQ(RenderPicture(RectangleScene(std::numeric_limits<double>::quiet_NaN(), 1.0),
                          PictureFormat::kSvg, bytes),
            PictureStatus::kUnbounded);
  EXPECT_EQ(RenderPicture(RectangleScene(std::numeric_limits<double>::infinity(), 1.0),
                          PictureFormat::kPdf, bytes),
            PictureStatus::kUnbounded);
  Scene widest = RectangleScene(kLargest, 1.0);
  widest.shapes[0].outline[0].x = -kLargest;
  EXPECT_EQ(RenderPicture(widest, PictureFormat::kPng, bytes), PictureStatus::kUnbounded);
  EXPECT_EQ(bytes, "untouched");
}

TEST(Picture, ReportsFilesThatCannotBeWritten) {
  const Scene scene = RectangleScene(200.0, 100.0);
  EXPECT_EQ(WritePicture(scene, PictureFormat::kPng, "/no/such/folder/a.png"),
            PictureStatus::kNotWritten);
  // Opens, but takes no byte.
  EXPECT_EQ(WritePicture(scene, PictureFormat::kPng, "/dev/full"), PictureStatus::kNotWritten);
}

TEST(Picture, FormatFollowsTheEnding) {
  PictureFormat format = PictureFormat::kSvg;
  EXPECT_TRUE(FormatFromPath("a.b/Fenster.PNG", format));
  EXPECT_EQ(format, PictureFormat::kPng);
  EXPECT_TRUE(FormatFromPath("x.pdf", format));
  EXPECT_EQ(format, PictureFormat::kPdf);
  EXPECT_FALSE(FormatFromPath("png", format));
  EXPECT_FALSE(FormatFromPath("x.png.gif", format));
  EXPECT_EQ(format, PictureFormat::kPdf);
}

TEST(LengthText, HasNoMoreDigitsThanNeeded) {
  EXPECT_EQ(LengthText(120.0), "120");
  EXPECT_EQ(LengthText(0.1 + 0.2), "0.3");
  EXPECT_EQ(LengthText(-45.1254), "-45.125");
  EXPECT_EQ(LengthText(-1e-9), "0");
  EXPECT_EQ(LengthText(1e20), "1e+20");
}

TEST(DisplayText, KeepsUtf8AndReadsTheRestAsWindows1252) {
  EXPECT_EQ(ToDisplayText("T\xc3\xbcr"), "T\xc3\xbcr");
  EXPECT_EQ(ToDisplayText("T\xfcr"), "T\xc3\xbcr");
  EXPECT_EQ(ToDisplayText("100 \x80"), "100 \xe2\x82\xac");
  EXPECT_EQ(ToDisplayText("\x81"), "\xef\xbf\xbd");
  EXPECT_EQ(ToDisplayText("\xf0\x9f\xaa\x9f"), "\xf0\x9f\xaa\x9f");
}

TEST(DisplayText, TakesIllFormedUtf8AsWindows1252) {
  // Overlong, a surrogate, beyond the last code point: each byte for itself.
  EXPECT_EQ(ToDisplayText("\xc0\xaf"), "\xc3\x80\xc2\xaf");
  EXPECT_EQ(ToDisplayText("\xed\xa0\xa1"), "\xc3\xad\xc2\xa0\xc2\xa1");
  EXPECT_EQ(ToDisplayText("\xf4\xb0\xb0\xb0"), "\xc3\xb4\xc2\xb0\xc2\xb0\xc2\xb0");
  EXPECT_EQ(ToDisplayText("Caf\xe9"), "Caf\xc3\xa9");
}

TEST(DisplayText, ControlCharactersCannotSteerATerminal) {
  EXPECT_EQ(ToDisplayText("a\n\nb"), "a b");
  EXPECT_EQ(ToDisplayText("\x1b[31mred"), " [31mred");
  EXPECT_EQ(ToDisplayText("a\xc2\x9b"
                          "b"),
            "a b");
}

TEST(DisplayText, DropsACharacterThatTheBufferCut) {
  char buffer[256];
  std::memset(buffer, 'a', sizeof buffer);
  buffer[255] = '\xc3';
  EXPECT_EQ(ToDisplayText(buffer, 256), std::string(255, 'a'));
  // The same byte in a text that is Windows-1252 anyway stays a letter.
  buffer[0] = '\xfc';
  EXPECT_EQ(ToDisplayText(buffer, 256), "\xc3\xbc" + std::string(254, 'a') + "\xc3\x83");
  EXPECT_EQ(ToDisplayText(buffer, -1), "");
}

}  // namespace
}  // namespace lintavo::drawing
