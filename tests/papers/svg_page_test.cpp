#include "papers/svg_page.h"

#include <gmock/gmock.h>

#include "papers/known_widths.h"
#include "papers/played_painting.h"

namespace awizo::papers {
namespace {

using ::testing::HasSubstr;

TEST(SvgPage, HasTheSizeOfItsPageInMillimetres) {
  const std::string svg = svgOf({a6, {}, {}}, KnownWidths());
  EXPECT_THAT(svg, HasSubstr("width=\"105mm\" height=\"148mm\" viewBox=\"0 0 105 148\""));
}

TEST(SvgPage, PlacesRectanglesAndTextsToTheTenthOfAMicrometre) {
  Page page{a6, {}, {}};
  page.rectangles = {{5, 0.508, 1.016, 32}, {0, 1.0 / 3, 105, 4, 0.1}};
  page.texts = {{5.25, 20, "Коробка", {4, true}}, {5, 30, "a", {4, false}}};
  const std::string svg = svgOf(page, test::PlayedMeasure());
  EXPECT_THAT(svg, HasSubstr("<rect x=\"5\" y=\"0.508\" width=\"1.016\" height=\"32\"/>"));
  EXPECT_THAT(svg, HasSubstr("<rect x=\"0\" y=\"0.3333\" width=\"105\" height=\"4\" "
                             "fill=\"rgb(230,230,230)\"/>"));
  EXPECT_THAT(svg, HasSubstr("<text x=\"5.25\" y=\"20\" font-size=\"4\" font-weight=\"bold\" "
                             "textLength=\"19.6\" lengthAdjust=\"spacingAndGlyphs\">Коробка<"));
  EXPECT_THAT(svg, HasSubstr("<text x=\"5\" y=\"30\" font-size=\"4\" textLength=\"2.4\""));
}

TEST(SvgPage, HoldsTextsThatLookLikeMarkup) {
  Page page{a4, {}, {}};
  page.texts = {{5, 20, "ООО «А» & <Б> \"В\"", {4, false}}, {5, 30, "", {4, false}}};
  const std::string svg = svgOf(page, test::PlayedMeasure());
  EXPECT_THAT(svg, HasSubstr(">ООО «А» &amp; &lt;Б&gt; \"В\"</text></svg>"));
}

TEST(KnownWidths, OfCharactersAddUp) {
  const KnownWidths widths;
  EXPECT_DOUBLE_EQ(widths.width("1", {2048, false}), 1303);
  EXPECT_DOUBLE_EQ(widths.width("11", {2048, true}), 2 * 1425);
  EXPECT_DOUBLE_EQ(widths.width("", {4, false}), 0);
  EXPECT_GT(widths.width("\U0001F4E6", {4, false}), 0);
}

}  // namespace
}  // namespace awizo::papers
