#include "tests/adapters_libxml2/loaded.h"

namespace awizo {
namespace {

using test::loaded;
using test::loadedXml;

std::string loadedFrom(std::string_view bytes) {
  const auto document = Libxml2().createDocument();
  return document->loadBytes(bytes) ? document->root().xml() : "failed";
}

std::string utf16(std::u16string_view text, bool bigEndian, std::string_view mark) {
  std::string bytes(mark);
  for (const char16_t unit : text) {
    const char low = static_cast<char>(unit & 0xFF);
    const char high = static_cast<char>(unit >> 8);
    bytes += bigEndian ? high : low;
    bytes += bigEndian ? low : high;
  }
  return bytes;
}

TEST(Loading, AnElementKnowsItsLine) {
  const auto document = loaded("<a>\n\n  <b\n/><c/></a>");
  EXPECT_EQ(document->root().line(), 1);
  EXPECT_EQ(document->root().firstChild().line(), 4);
  EXPECT_EQ(document->createElement("d").line(), 0);
}

/// Elements hold their lines in 16 bits.
TEST(Loading, TheLastLineThatIsToldStandsForAllBehindIt) {
  const auto document = loaded("<a>" + std::string(70000, '\n') + "<b/></a>");
  EXPECT_EQ(document->root().firstChild().line(), 65535);
}

TEST(Loading, AFailureIsToldByItsLine) {
  const auto document = Libxml2().createDocument();
  EXPECT_EQ(document->failedAtLine(), 0);
  EXPECT_FALSE(document->loadText("<a>\n<b>\n</a>"));
  EXPECT_EQ(document->failedAtLine(), 3);
  EXPECT_FALSE(document->loadBytes("<a>\n\n\n<b>"));
  EXPECT_EQ(document->failedAtLine(), 4);
  EXPECT_FALSE(document->loadText("\n<a>\n&unknown;</a>"));
  EXPECT_EQ(document->failedAtLine(), 3);
  EXPECT_TRUE(document->loadText("<a/>"));
  EXPECT_EQ(document->failedAtLine(), 0);
  EXPECT_FALSE(document->loadText(""));
  EXPECT_EQ(document->failedAtLine(), 0);
}

TEST(Loading, AFreshDocumentIsEmpty) {
  const auto document = Libxml2().createDocument();
  EXPECT_FALSE(document->root());
  EXPECT_TRUE(document->node());
  EXPECT_EQ(document->node().name(), "#document");
  EXPECT_EQ(document->node().text(), "");
  EXPECT_EQ(document->node().xml(), "");
  EXPECT_EQ(document->fileBytes(), "");
  EXPECT_FALSE(document->node().firstChild());
  EXPECT_FALSE(document->node().selectSingle("/a"));
  EXPECT_FALSE(document->node().selectSingle("//a[1]"));
}

TEST(Loading, AFailedLoadEmptiesTheDocument) {
  for (const char* text :
       {"", " ", "<a>", "<a></b>", "no XML", "<a/><b/>", "<a>&none;</a>", "<!-- c -->",
        "<a b='1' b='2'/>", "\xFF\xFE", "<a>\xFF</a>", "<a>\x01</a>"}) {
    const auto document = loaded("<a>old</a>");
    EXPECT_FALSE(document->loadText(text)) << text;
    EXPECT_FALSE(document->root()) << text;
    EXPECT_EQ(document->node().xml(), "") << text;
    EXPECT_FALSE(document->node().selectSingle("/a[1]")) << text;
    EXPECT_TRUE(document->loadText("<b/>"));
    EXPECT_EQ(document->root().name(), "b");
  }
}

TEST(Loading, APrefixWithoutItsNamespaceFails) { EXPECT_EQ(loadedXml("<p:a/>"), "failed"); }

TEST(Loading, ANewLoadReplacesTheOldContent) {
  const auto document = loaded("<?xml version=\"1.0\" encoding=\"windows-1251\"?><a>1</a>");
  EXPECT_TRUE(document->loadText("<b>2</b>"));
  EXPECT_EQ(document->fileBytes(), "<b>2</b>");
}

TEST(WhiteSpace, IsDroppedBetweenElements) {
  EXPECT_EQ(loadedXml("<a>\n  <b>1</b>\r\n\t<c> <d/> </c>\n</a>\n"), "<a><b>1</b><c><d/></c></a>");
}

TEST(WhiteSpace, IsDroppedBesideEveryOtherNode) {
  EXPECT_EQ(loadedXml("<a> <!-- c --> <?p i?> <![CDATA[x]]> <b/> </a>"),
            "<a><!-- c --><?p i?><![CDATA[x]]><b/></a>");
}

TEST(WhiteSpace, IsDroppedInMixedContentWhereItIsATextOfItsOwn) {
  EXPECT_EQ(loadedXml("<a>text <b/> <c/> <!-- c --> more</a>"),
            "<a>text <b/><c/><!-- c --> more</a>");
  EXPECT_EQ(loadedXml("<a> <b/>text</a>"), "<a><b/>text</a>");
}

TEST(WhiteSpace, IsKeptWithinAText) {
  EXPECT_EQ(loadedXml("<a>  text  </a>"), "<a>  text  </a>");
  EXPECT_EQ(loadedXml("<a>\n text\n\n more </a>"), "<a>\n text\n\n more </a>");
  EXPECT_EQ(loadedXml("<a>  Ёж  &amp;  1 &lt; 2 </a>"), "<a>  Ёж  &amp;  1 &lt; 2 </a>");
  EXPECT_EQ(loadedXml("<a>  &#1025;</a>"), "<a>  Ё</a>");
}

TEST(WhiteSpace, AloneInAnElementItIsItsText) {
  EXPECT_EQ(loadedXml("<a> <b>  </b> </a>"), "<a><b>  </b></a>");
  EXPECT_EQ(loaded("<a> <b>  </b> </a>")->root().text(), "");
}

TEST(WhiteSpace, InCDataIsKept) {
  EXPECT_EQ(loadedXml("<a> <![CDATA[  ]]> <b/></a>"), "<a><![CDATA[  ]]><b/></a>");
}

TEST(WhiteSpace, BetweenTwoCDataSectionsKeepsThemApart) {
  EXPECT_EQ(loadedXml("<a> <![CDATA[x]]> <![CDATA[y]]> <b> </b> </a>"),
            "<a><![CDATA[x]]><![CDATA[y]]><b> </b></a>");
}

TEST(WhiteSpace, OfAnyLengthIsTreatedAlike) {
  const std::string blanks(100'000, ' ');
  EXPECT_EQ(loadedXml("<a>" + blanks + "<b/>" + blanks + "</a>"), "<a><b/></a>");
  EXPECT_EQ(loadedXml("<a>" + blanks + "x</a>"), "<a>" + blanks + "x</a>");
}

TEST(WhiteSpace, AroundEntitiesToo) {
  const std::string head = "<!DOCTYPE a [<!ENTITY e '<b/>'><!ENTITY t 'x'><!ENTITY s ' '>]>";
  EXPECT_EQ(loadedXml(head + "<a> &e; <c/> &e; </a>"), "<a><b/><c/><b/></a>");
  EXPECT_EQ(loadedXml(head + "<a> &t; <c/> </a>"), "<a> x <c/></a>");
  EXPECT_EQ(loadedXml(head + "<a> <c d='&t;'/> <c/> </a>"), "<a><c d=\"x\"/><c/></a>");
  EXPECT_EQ(loadedXml(head + "<a>x&s;y<b>x&s;y</b></a>"), "<a>x y<b>x y</b></a>");
}

TEST(Encodings, OfATextIsUtf8WhateverIsDeclared) {
  for (const char* encoding : {"windows-1251", "UTF-16", "UTF-8", "ISO-8859-1", "nonsense"}) {
    EXPECT_EQ(
        loadedXml(std::string("<?xml version=\"1.0\" encoding=\"") + encoding + "\"?><a>Ёж</a>"),
        "<a>Ёж</a>")
        << encoding;
  }
}

TEST(Encodings, ATextMayBeginWithAByteOrderMark) {
  EXPECT_EQ(loadedXml("\xEF\xBB\xBF<a>Ёж</a>"), "<a>Ёж</a>");
  EXPECT_EQ(loadedXml("\xEF\xBB\xBF<?xml version=\"1.0\"?><a>Ёж</a>"), "<a>Ёж</a>");
}

TEST(Encodings, ATextIsNeverTakenAsAWideOne) {
  EXPECT_EQ(loadedXml(utf16(u"<a/>", false, "\xFF\xFE")), "failed");
  EXPECT_EQ(loadedXml(utf16(u"<a/>", false, "")), "failed");
}

TEST(Encodings, OfBytesIsTheDeclaredOne) {
  EXPECT_EQ(loadedFrom("<?xml version='1.0' encoding='windows-1251'?><a b='\xB9'>\xA8\xE6</a>"),
            "<a b=\"№\">Ёж</a>");
  EXPECT_EQ(loadedFrom("<?xml version='1.0' encoding='UTF-8'?><a>Ёж</a>"), "<a>Ёж</a>");
}

TEST(Encodings, OfBytesIsUtf8WhereNothingIsDeclared) {
  EXPECT_EQ(loadedFrom("<a>Ёж</a>"), "<a>Ёж</a>");
  EXPECT_EQ(loadedFrom("<?xml version='1.0'?><a>Ёж</a>"), "<a>Ёж</a>");
  EXPECT_EQ(loadedFrom("<a>\xA8\xE6</a>"), "failed");
}

TEST(Encodings, OfBytesFollowsTheByteOrderMark) {
  EXPECT_EQ(loadedFrom("\xEF\xBB\xBF<a>Ёж</a>"), "<a>Ёж</a>");
  EXPECT_EQ(loadedFrom(utf16(u"<a>Ёж</a>", false, "\xFF\xFE")), "<a>Ёж</a>");
  EXPECT_EQ(loadedFrom(utf16(u"<a>Ёж</a>", true, "\xFE\xFF")), "<a>Ёж</a>");
  const std::u16string declared = u"<?xml version='1.0' encoding='UTF-16'?><a>Ёж</a>";
  EXPECT_EQ(loadedFrom(utf16(declared, false, "\xFF\xFE")), "<a>Ёж</a>");
}

TEST(Encodings, AnUnknownOneFails) {
  EXPECT_EQ(loadedFrom("<?xml version='1.0' encoding='nonsense'?><a/>"), "failed");
}

}  // namespace
}  // namespace awizo
