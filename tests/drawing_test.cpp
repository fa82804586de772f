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

TEST(Picture, SvgIsWellFormedWithOnePathPerShape) {
  Scene scene = RectangleScene(200.0, 100.0);
  scene.shapes.push_back(scene.shapes.front());
  scene.shapes.back().kind = ShapeKind::kGlas;
  const auto svg = ParseSvg(Render(scene, PictureFormat::kSvg));
  EXPECT_TRUE(svg.wellFormed);
  EXPECT_EQ(svg.root, "svg");
  EXPECT_EQ(svg.viewBox, "0 0 1600 864");
  EXPECT_EQ(svg.paths, 2);
}

TEST(Picture, LinesAndTextsComeOutOnce) {
  Scene scene = RectangleScene(200.0, 100.0);
  scene.lines.resize(3);
  scene.lines[0].to = scene.lines[1].to = scene.lines[2].to = {200.0, 100.0};
  scene.lines[1].dashed = true;
  scene.texts.push_back({0, {100.0, -20.0}, 5.0, false, "200"});
  scene.texts.push_back({1, {-20.0, 50.0}, 5.0, true, "100.5"});
  const auto svg = ParseSvg(Render(scene, PictureFormat::kSvg));
  EXPECT_TRUE(svg.wellFormed);
  EXPECT_EQ(svg.paths, 1 + 3 + 2);
  EXPECT_EQ(svg.dashed, 1);
}

TEST(Picture, LetteringFillsTheBoxOfItsText) {
  // Alone on the page, the digits reach from margin to margin but for half a pen, a
  // tenth of their height: the box is as high as the digits and 3.5 times as long.
  Scene scene;
  scene.texts.push_back({0, {7.0, 3.0}, 10.0, false, "80269"});
  Box box;
  ASSERT_TRUE(GetBox(scene, box));
  EXPECT_NEAR(box.top - box.bottom, 10.0, 1e-9);
  // Five digits of 0.56 and four gaps of 0.24, drawn in 0.9 of the height, and the pen.
  EXPECT_NEAR(box.right - box.left, 10.0 * (0.9 * (5 * 0.56 + 4 * 0.24) + 0.1), 1e-9);
  const auto svg = ParseSvg(Render(scene, PictureFormat::kSvg));
  const double pen = 1472.0 / (box.right - box.left);  // a tenth of the digits' height
  EXPECT_NEAR(svg.left, 64.0 + pen / 2.0, 0.01);
  EXPECT_NEAR(svg.right, 1536.0 - pen / 2.0, 0.01);
  EXPECT_NEAR(svg.bottom - svg.top, 9.0 * pen, 0.01);
}

TEST(Picture, UpInTheWindowIsUpOnPaper) {
  Scene scene;
  scene.shapes.resize(1);
  scene.shapes[0].outline = {{0.0, 0.0}, {100.0, 0.0}, {50.0, 100.0}};
  const std::string svg = Render(scene, PictureFormat::kSvg);
  // The triangle's base lies below its apex: y grows downwards on paper.
  EXPECT_NE(svg.find("M 64 1536 L 1536 1536 L 800 64 Z"), std::string::npos) << svg;
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
