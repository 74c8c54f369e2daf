#include "adapters/libxml2/libxml2.h"

namespace awizo {
namespace {

TEST(ElementName, IsThatOfAnElementInNoNamespace) {
  const auto document = Libxml2().createDocument();
  ASSERT_TRUE(
      document->loadText("<a><Line/><!--Line--><?Line?>Line<Line xmlns='urn:x'/>"
                         "<x:Line xmlns:x='urn:x'/><Lines/><Lin/></a>"));
  std::vector<bool> answers;
  for (const XmlNode& child : document->root().children()) {
    answers.push_back(child.isElement("Line"));
    // The same as a step of a path says.
    EXPECT_EQ(child.isElement("Line"), static_cast<bool>(child.selectSingle("self::Line")))
        << child.xml();
  }
  EXPECT_THAT(answers,
              ::testing::ElementsAre(true, false, false, false, false, false, false, false));
  EXPECT_FALSE(document->node().isElement("Line"));
}

TEST(ElementName, OfNoNodeIsAnError) { EXPECT_THROW(XmlNode().isElement("Line"), RunTimeError); }

}  // namespace
}  // namespace awizo
