#include "tests/adapters_libxml2/loaded.h"

namespace awizo {
namespace {

using test::loaded;

TEST(Writing, AnElementHasNoDeclaration) {
  const auto document = loaded("<?xml version=\"1.0\" encoding=\"windows-1251\"?><a b=\"Ё\">ж</a>");
  EXPECT_EQ(document->root().xml(), "<a b=\"Ё\">ж</a>");
}

TEST(Writing, AttributesStayReadableWithoutADeclaration) {
  EXPECT_EQ(loaded("<a b=\"Ёж &amp; &lt;&quot;'\"/>")->root().xml(),
            "<a b=\"Ёж &amp; &lt;&quot;'\"/>");
}

TEST(Writing, NothingIsAddedForTheEye) {
  EXPECT_EQ(loaded("<a>\n  <b>\n    <c/>\n  </b>\n</a>")->fileBytes(), "<a><b><c/></b></a>");
}

TEST(Writing, CDataStaysCDataAlsoAcrossDocuments) {
  const auto document = loaded("<a/>");
  document->root().append(loaded("<b><![CDATA[1 < 2 & 3]]></b>")->root());
  EXPECT_EQ(document->root().xml(), "<a><b><![CDATA[1 < 2 & 3]]></b></a>");
  EXPECT_EQ(document->fileBytes(), "<a><b><![CDATA[1 < 2 & 3]]></b></a>");
}

TEST(Writing, CommentsAndInstructionsStay) {
  const std::string text = "<a><!-- c --><?p i?></a>";
  EXPECT_EQ(loaded(text)->root().xml(), text);
}

TEST(Writing, TheDocumentHasItsDeclaration) {
  EXPECT_EQ(loaded("<?xml version=\"1.0\"?><a/>")->node().xml(), "<?xml version=\"1.0\"?>\n<a/>\n");
  EXPECT_EQ(loaded("<?xml version='1.0' standalone='yes'?><a/>")->node().xml(),
            "<?xml version=\"1.0\" standalone=\"yes\"?>\n<a/>\n");
  EXPECT_EQ(loaded("<a>Ё</a>")->node().xml(), "<a>Ё</a>");
}

TEST(Writing, TheDocumentsTextIsUtf8AndSaysSo) {
  EXPECT_EQ(loaded("<?xml version=\"1.0\" encoding=\"windows-1251\"?><a>Ё</a>")->node().xml(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>Ё</a>\n");
}

TEST(Files, AreUtf8WithoutADeclarationAdded) {
  EXPECT_EQ(loaded("<a b=\"№\">Ёж</a>")->fileBytes(), "<a b=\"№\">Ёж</a>");
  EXPECT_EQ(loaded("<?xml version=\"1.0\"?><a>Ёж</a>")->fileBytes(),
            "<?xml version=\"1.0\"?>\n<a>Ёж</a>\n");
  EXPECT_EQ(loaded("<?xml version=\"1.0\" encoding=\"UTF-8\"?><a>Ёж</a>")->fileBytes(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>Ёж</a>\n");
}

TEST(Files, AreInTheDeclaredEncoding) {
  const auto document = Libxml2().createDocument();
  const std::string bytes =
      "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n<a b=\"\xB9\">\xA8\xE6</a>\n";
  ASSERT_TRUE(document->loadBytes(bytes));
  EXPECT_EQ(document->fileBytes(), bytes);
}

TEST(Files, AreInTheDeclaredEncodingOfATextToo) {
  const auto document = loaded("<?xml version=\"1.0\" encoding='windows-1251' ?><a>Ёж</a>");
  EXPECT_EQ(document->fileBytes(),
            "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n<a>\xA8\xE6</a>\n");
}

TEST(Files, WriteWhatTheEncodingLacksAsACharacterReference) {
  const auto document =
      loaded("<?xml version=\"1.0\" encoding=\"windows-1251\"?><a b=\"é\">日😀</a>");
  EXPECT_EQ(document->fileBytes(),
            "<?xml version=\"1.0\" encoding=\"windows-1251\"?>\n"
            "<a b=\"&#233;\">&#26085;&#128512;</a>\n");
}

TEST(Files, InUtf16ComeBack) {
  const auto document = loaded("<?xml version=\"1.0\" encoding=\"UTF-16\"?><a>Ёж</a>");
  const std::string bytes = document->fileBytes();
  EXPECT_TRUE(bytes.starts_with("\xFF\xFE<"));
  const auto again = Libxml2().createDocument();
  ASSERT_TRUE(again->loadBytes(bytes));
  EXPECT_EQ(again->root().xml(), "<a>Ёж</a>");
  EXPECT_EQ(again->fileBytes(), bytes);
}

TEST(Files, InAnUnknownEncodingAreWrittenInUtf8) {
  const auto document = loaded("<?xml version=\"1.0\" encoding=\"nonsense\"?><a>Ёж</a>");
  EXPECT_EQ(document->fileBytes(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>Ёж</a>\n");
}

TEST(Files, ReadBackWhateverEncodingATextDeclares) {
  for (const std::string encoding :
       {"UTF-7", "UNICODE-1-1-UTF-7", "UTF-32", "UTF-32LE", "UCS-4", "UTF-16LE", "UTF-16BE",
        "IBM037", "ISO-2022-KR", "KOI8-R", "ISO-8859-5"}) {
    const auto document =
        loaded("<?xml version=\"1.0\" encoding=\"" + encoding + "\"?><a b=\"+Ж\">Ёж</a>");
    const auto again = Libxml2().createDocument();
    ASSERT_TRUE(again->loadBytes(document->fileBytes())) << encoding;
    EXPECT_EQ(again->root().xml(), "<a b=\"+Ж\">Ёж</a>") << encoding;
  }
}

TEST(Files, InAnEncodingThatHidesItsOwnDeclarationAreWrittenInUtf8) {
  const auto document = loaded("<?xml version=\"1.0\" encoding=\"UTF-7\"?><a>Ёж</a>");
  EXPECT_EQ(document->fileBytes(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>Ёж</a>\n");
}

TEST(Files, KeepTheDocumentType) {
  const std::string text = "<!DOCTYPE a [\n<!ENTITY e \"x\">\n]>\n<a>x</a>";
  EXPECT_EQ(loaded(text)->fileBytes(), text);
}

TEST(Files, OfALargeDocumentInAnotherEncodingAreWhole) {
  const auto document = loaded("<?xml version=\"1.0\" encoding=\"windows-1251\"?><a/>");
  const auto line = document->createElement("b");
  std::string text;
  for (int i = 0; i < 200'000; ++i) text += "Ёж №é ";
  line.setText(text);
  document->root().append(line);
  const auto again = Libxml2().createDocument();
  ASSERT_TRUE(again->loadBytes(document->fileBytes()));
  EXPECT_TRUE(again->root().text() + " " == text);
}

}  // namespace
}  // namespace awizo
