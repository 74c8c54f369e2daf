#include "tests/adapters_libxml2/loaded.h"

namespace awizo {
namespace {

using test::errorNumberOf;
using test::loaded;

TEST(Texts, OfANodeAreThoseOfAllBelow) {
  EXPECT_EQ(loaded("<a>1<b>2<c>3</c></b><!-- no --><?no no?><![CDATA[4]]><d/>5</a>")->root().text(),
            "12345");
  EXPECT_EQ(loaded("<?xml version=\"1.0\"?><!-- no --><a>1</a>")->node().text(), "1");
}

TEST(Texts, AreCutOfOuterWhiteSpaceOnly) {
  EXPECT_EQ(loaded("<a> \t\r\n 1  2\n3 \n</a>")->root().text(), "1  2\n3");
  EXPECT_EQ(loaded("<a> <b> 1 </b> <b> 2 </b> </a>")->root().text(), "1  2");
  EXPECT_EQ(loaded("<a>\u00A01\u00A0</a>")->root().text(), "\u00A01\u00A0");
  EXPECT_EQ(loaded("<a>   </a>")->root().text(), "");
}

TEST(Texts, AreEscapedWhenWritten) {
  const auto document = loaded("<a><b>old<c/></b></a>");
  const XmlNode b = document->root().firstChild();
  b.setText("1 < 2 & \"3\" > 'x' ]]>");
  EXPECT_EQ(b.text(), "1 < 2 & \"3\" > 'x' ]]>");
  EXPECT_EQ(b.xml(), "<b>1 &lt; 2 &amp; \"3\" &gt; 'x' ]]&gt;</b>");
}

TEST(Texts, OfMarkupAndEntitiesStayText) {
  const auto document = loaded("<a/>");
  document->root().setText("<b>&amp;</b>");
  EXPECT_EQ(document->root().xml(), "<a>&lt;b&gt;&amp;amp;&lt;/b&gt;</a>");
  EXPECT_EQ(loaded(document->root().xml())->root().text(), "<b>&amp;</b>");
}

TEST(Texts, MadeEmptyLeaveAnEmptyElement) {
  const auto document = loaded("<a>1</a>");
  document->root().setText("");
  EXPECT_EQ(document->root().xml(), "<a/>");
  EXPECT_EQ(loaded("<a></a>")->root().xml(), "<a/>");
}

TEST(Texts, ThatNoXmlCanHoldAreRefused) {
  const auto document = loaded("<a>old</a>");
  const XmlNode a = document->root();
  for (const char* text : {"\x01", "1\x1F", "\uFFFE", "x\uFFFFy", "\xFF", "\xED\xA0\x80"}) {
    EXPECT_EQ(errorNumberOf([&] { a.setText(text); }), 5);
    EXPECT_EQ(a.text(), "old");
  }
  const std::string allowed = "\t1\n2\r\x7F\u0085\uFFFD\U0001F600\U0001FFFF";
  a.setText(allowed);
  EXPECT_EQ(loaded(a.xml())->root().text(), allowed.substr(1));
}

TEST(Texts, CanBeSetOnATextAndAnAttribute) {
  const auto document = loaded("<a b=\"1\">2<![CDATA[3]]></a>");
  document->root().firstChild().setText("x&y");
  document->root().firstChild().nextSibling().setText("<z>");
  document->root().selectSingle("@b").setText("\"<&");
  EXPECT_EQ(document->root().xml(), "<a b=\"&quot;&lt;&amp;\">x&amp;y<![CDATA[<z>]]></a>");
}

TEST(Children, AreElementsTextsCommentsAndInstructions) {
  const auto document = loaded("<a>1<b/><!--2--><?p 3?><![CDATA[4]]></a>");
  std::vector<std::string> names;
  for (const XmlNode& child : document->root().children()) names.push_back(child.name());
  EXPECT_THAT(names, testing::ElementsAre("#text", "b", "#comment", "p", "#cdata-section"));
  EXPECT_THAT(test::texts(document->root().children()),
              testing::ElementsAre("1", "", "2", "3", "4"));
}

TEST(Children, OfTheDocumentAreWithoutItsType) {
  const auto document = loaded("<!DOCTYPE a><!--1--><a/><!--2-->");
  std::vector<std::string> names;
  for (const XmlNode& child : document->node().children()) names.push_back(child.name());
  EXPECT_THAT(names, testing::ElementsAre("#comment", "a", "#comment"));
}

TEST(Names, HaveTheirPrefix) {
  const auto document = loaded("<p:a xmlns:p=\"u\" p:b=\"1\"/>");
  EXPECT_EQ(document->root().name(), "p:a");
  EXPECT_EQ(document->root().selectSingle("@*").name(), "p:b");
}

TEST(Appending, PutsANewElementBehindTheLastChild) {
  const auto document = loaded("<a><b/></a>");
  const XmlNode element = document->createElement("Line-Item");
  EXPECT_EQ(element.name(), "Line-Item");
  EXPECT_FALSE(element.nextSibling());
  element.setText("1");
  document->root().append(element);
  EXPECT_EQ(document->root().xml(), "<a><b/><Line-Item>1</Line-Item></a>");
}

TEST(Appending, BuildsADocumentFromNothing) {
  const auto document = Libxml2().createDocument();
  document->node().append(document->createElement("a"));
  document->root().append(document->createElement("b"));
  EXPECT_EQ(document->node().xml(), "<a><b/></a>");
  EXPECT_EQ(document->fileBytes(), "<a><b/></a>");
}

TEST(Appending, MovesANodeWithinItsDocument) {
  const auto document = loaded("<a><b>1</b><c/><d><e/></d></a>");
  const XmlNode b = document->root().selectSingle("b");
  document->root().selectSingle("d").append(b);
  EXPECT_EQ(document->root().xml(), "<a><c/><d><e/><b>1</b></d></a>");
  document->root().append(b);
  EXPECT_EQ(document->root().xml(), "<a><c/><d><e/></d><b>1</b></a>");
}

TEST(Appending, MovesANodeOutOfAnotherDocumentWhichMayThenEnd) {
  const auto document = loaded("<a/>");
  XmlNode moved;
  {
    const auto other = loaded(
        "<x><Name attribute=\"value\">text<![CDATA[<&]]><!--c--><?p "
        "i?><Inner>и</Inner></Name><y/></x>");
    moved = other->root().firstChild();
    document->root().append(moved);
    EXPECT_EQ(other->root().xml(), "<x><y/></x>");
    other->loadText("<gone/>");
  }
  EXPECT_EQ(
      document->root().xml(),
      "<a><Name attribute=\"value\">text<![CDATA[<&]]><!--c--><?p i?><Inner>и</Inner></Name></a>");
  EXPECT_EQ(document->root().selectSingle("Name/Inner").text(), "и");
  EXPECT_EQ(document->root().selectSingle("Name[@attribute='value']/Inner").text(), "и");
  document->root().firstChild().setText("");
  EXPECT_EQ(document->root().xml(), "<a><Name attribute=\"value\"/></a>");
}

TEST(Appending, MovesIntoADocumentThatWasMadeFromNothing) {
  const auto document = Libxml2().createDocument();
  document->node().append(loaded("<a b=\"1\"><c>2</c></a>")->root());
  EXPECT_EQ(document->node().xml(), "<a b=\"1\"><c>2</c></a>");
  const auto parsed = loaded("<x/>");
  parsed->root().append(document->root());
  EXPECT_EQ(parsed->node().xml(), "<x><a b=\"1\"><c>2</c></a></x>");
  EXPECT_FALSE(document->root());
}

TEST(Appending, MovesANewElementOfAnotherDocument) {
  const auto document = loaded("<a/>");
  {
    const auto other = loaded("<x/>");
    document->root().append(other->createElement("b"));
  }
  EXPECT_EQ(document->root().xml(), "<a><b/></a>");
}

TEST(Appending, KeepsANodeOfTextWhatItWasBesideAnother) {
  const auto document = loaded("<a>1<b/>2</a>");
  const XmlNode first = document->root().firstChild();
  document->root().append(first);
  EXPECT_EQ(document->root().xml(), "<a><b/>21</a>");
  EXPECT_EQ(first.text(), "1");
}

TEST(Appending, TakesItsNamespaceAlong) {
  const auto document = loaded("<a/>");
  {
    const auto other = loaded("<x xmlns:p=\"u\" xmlns=\"v\"><p:b p:c=\"1\"><d/></p:b></x>");
    document->root().append(other->root().firstChild());
  }
  EXPECT_EQ(loaded(document->root().xml())->node().selectAll("//*[namespace-uri()='u']").size(),
            1U);
  EXPECT_EQ(loaded(document->root().xml())->node().selectAll("//*[namespace-uri()='v']").size(),
            1U);
  EXPECT_EQ(loaded(document->root().xml())->node().selectAll("//@*[namespace-uri()='u']").size(),
            1U);
}

TEST(Appending, OfNoneIsAnError) {
  const auto document = loaded("<a/>");
  EXPECT_EQ(errorNumberOf([&] { document->root().append(XmlNode()); }), 5);
  EXPECT_EQ(errorNumberOf([&] { document->root().append(document->root().selectSingle("b")); }), 5);
  EXPECT_EQ(errorNumberOf([&] { XmlNode().append(document->root()); }), 91);
}

TEST(Appending, WhatCantBeAChildIsAnError) {
  const auto document = loaded("<a x=\"1\"><b><c/></b>text</a>");
  const XmlNode root = document->root();
  const XmlNode c = root.selectSingle("b/c");
  EXPECT_EQ(errorNumberOf([&] { c.append(root); }), 5);
  EXPECT_EQ(errorNumberOf([&] { c.append(c); }), 5);
  EXPECT_EQ(errorNumberOf([&] { c.append(document->node()); }), 5);
  EXPECT_EQ(errorNumberOf([&] { c.append(root.selectSingle("@x")); }), 5);
  EXPECT_EQ(errorNumberOf([&] { document->node().append(document->createElement("second")); }), 5);
  EXPECT_EQ(errorNumberOf([&] { root.selectSingle("text()").append(c); }), 5);
  EXPECT_EQ(root.xml(), "<a x=\"1\"><b><c/></b>text</a>");
}

TEST(NewElements, NeedAValidName) {
  const auto document = loaded("<a/>");
  for (const char* name : {"", " ", "a b", "1a", "-a", "<a>", "a:b", "a&"}) {
    EXPECT_EQ(errorNumberOf([&] { document->createElement(name); }), 5) << name;
  }
  EXPECT_EQ(errorNumberOf([&] { document->createElement(std::string_view("a\0b", 3)); }), 5);
  EXPECT_EQ(document->createElement("Я_1.x-y").name(), "Я_1.x-y");
}

TEST(NewElements, ThatAreNeverPutAnywhereDoNoHarm) {
  const auto document = loaded("<a/>");
  const XmlNode loose = document->createElement("b");
  loose.append(document->createElement("c"));
  EXPECT_EQ(loose.xml(), "<b><c/></b>");
  document->createElement("d");
  EXPECT_EQ(document->root().xml(), "<a/>");
}

TEST(Keeping, AnElementDropsAllTheRest) {
  const auto document = loaded(
      "<?xml version=\"1.0\" encoding=\"windows-1251\"?><!DOCTYPE r [<!ENTITY e 'x'>]><!-- 1 -->"
      "<r><s/><t>&e;<u v=\"w\">2</u>3</t></r><!-- 4 -->");
  const XmlNode kept = document->root().selectSingle("t");
  document->createElement("loose");
  document->keepOnly(kept);
  EXPECT_EQ(document->root(), kept);
  EXPECT_EQ(document->node().xml(), "<t>x<u v=\"w\">2</u>3</t>");
  EXPECT_EQ(document->fileBytes(), "<t>x<u v=\"w\">2</u>3</t>");
  EXPECT_EQ(document->node().selectSingle("/t/u").text(), "2");
  EXPECT_EQ(document->node().selectAll("//*").size(), 2U);
  EXPECT_FALSE(kept.nextSibling());
}

TEST(Keeping, TheDocumentElementKeepsIt) {
  const auto document = loaded("<!-- 1 --><a><b/></a>");
  document->keepOnly(document->root());
  EXPECT_EQ(document->node().xml(), "<a><b/></a>");
}

TEST(Keeping, AnElementKeepsItsNamespaces) {
  const auto document = loaded("<r xmlns=\"v\" xmlns:p=\"u\"><p:s><t/></p:s></r>");
  document->keepOnly(document->root().firstChild());
  EXPECT_EQ(document->root().name(), "p:s");
  EXPECT_EQ(document->node().selectAll("//*[namespace-uri()='v']").size(), 1U);
  EXPECT_TRUE(Libxml2().createDocument()->loadText(document->root().xml()));
}

TEST(Keeping, AnElementThatCameFromAnotherDocumentDropsAllTheRest) {
  const auto document = loaded("<a><b/></a>");
  const auto other = loaded("<c><d/></c>");
  const XmlNode moved = other->root().firstChild();
  document->root().append(moved);
  document->keepOnly(moved);
  EXPECT_EQ(document->node().xml(), "<d/>");
}

TEST(Keeping, ANodeThatCantBeTheDocumentElementIsAnError) {
  const auto document = loaded("<a>text</a>");
  EXPECT_EQ(errorNumberOf([&] { document->keepOnly(XmlNode()); }), 91);
  EXPECT_EQ(errorNumberOf([&] { document->keepOnly(document->root().firstChild()); }), 5);
  EXPECT_EQ(errorNumberOf([&] { document->keepOnly(loaded("<b/>")->root()); }), 5);
  EXPECT_EQ(document->root().xml(), "<a>text</a>");
}

}  // namespace
}  // namespace awizo
