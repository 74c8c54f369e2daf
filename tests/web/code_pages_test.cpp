#include "hosts/web/core/code_pages.h"

#include <iconv.h>

#include "adapters/libxml2/libxml2.h"
#include "hosts/web/core/code_page_tables.h"

namespace awizo::web::test {
namespace {

/// One byte of an encoding as the machine's own library reads it; empty where it has no character.
std::string characterOf(const char* encoding, char byte) {
  const iconv_t converter = iconv_open("UTF-8", encoding);
  std::array<char, 8> text{};
  char* in = &byte;
  char* out = text.data();
  std::size_t inSize = 1;
  std::size_t outSize = text.size();
  const bool read = iconv(converter, &in, &inSize, &out, &outSize) != static_cast<std::size_t>(-1);
  iconv_close(converter);
  return read ? std::string(text.data(), text.size() - outSize) : "";
}

class CodePagesTest : public testing::TestWithParam<CodePage> {
 protected:
  CodePagesTest() { registerCodePages(); }
};

std::string nameOf(const testing::TestParamInfo<CodePage>& page) {
  std::string name;
  for (const char* letter = page.param.name; *letter != '\0'; ++letter) {
    if (*letter != '-') name += *letter;
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, CodePagesTest, testing::ValuesIn(codePages), nameOf);

TEST_P(CodePagesTest, DocumentsAreReadAsTheMachinesOwnLibraryReadsThem) {
  std::string expected;
  std::string bytes;
  for (int code = 128; code < 256; ++code) {
    const auto byte = static_cast<char>(code);
    const std::string character = characterOf(GetParam().name, byte);
    // What is a control character is none of XML's.
    if (character.size() < 2 || character < "\u00A0") continue;
    expected += character;
    bytes += byte;
  }
  ASSERT_GT(bytes.size(), 90U);
  for (const char* name : {GetParam().name, GetParam().otherName}) {
    const auto document = Libxml2().createDocument();
    const std::string start = std::string("<?xml version=\"1.0\" encoding=\"") + name + "\"?>";
    ASSERT_TRUE(document->loadBytes(start + "<a>" + bytes + "</a>")) << name;
    EXPECT_EQ(document->root().text(), expected) << name;
  }
}

TEST_P(CodePagesTest, AByteWithoutACharacterEndsTheReading) {
  const auto& upper = GetParam().upperHalf;
  const auto missing = std::find(upper.begin(), upper.end(), 0);
  if (missing == upper.end()) GTEST_SKIP() << "every byte has one";
  const char byte = static_cast<char>(128 + (missing - upper.begin()));
  const auto document = Libxml2().createDocument();
  EXPECT_FALSE(document->loadBytes(std::string("<?xml version=\"1.0\" encoding=\"") +
                                   GetParam().name + "\"?><a>" + byte + "</a>"));
}

}  // namespace
}  // namespace awizo::web::test
