#include "adapters/libxml2/libxml2.h"

namespace awizo {
namespace {

std::unique_ptr<XmlDocument> loaded(std::string_view text) {
  auto document = Libxml2().createDocument();
  EXPECT_TRUE(document->loadText(text)) << text;
  return document;
}

TEST(Loading, DropsWhiteSpaceBetweenElements) {
  auto document = loaded("<a>\n  <b> x </b>\n  <!-- c -->\n <c/> \r\n</a>");
  EXPECT_EQ(document->root().xml(), "<a><b> x </b><!-- c --><c/></a>");
}

}  // namespace
}  // namespace awizo
