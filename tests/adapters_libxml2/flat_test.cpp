#include <random>

#include "tests/adapters_libxml2/loaded.h"

namespace awizo {
namespace {

using test::loaded;

// A document of elements, texts and CDATA sections alone is kept in a flat form until more is asked
// of it than reading. Nobody may see a difference.

/// All that can be read of a node and of what is below it.
std::string outline(const XmlNode& node) {
  std::string told = node.name() + "'" + node.text() + "'" + std::to_string(node.line()) + "(";
  for (XmlNode child = node.firstChild(); child; child = child.nextSibling()) {
    told += outline(child);
  }
  return told + ")";
}

std::string selected(XmlDocument& document) {
  std::string told;
  for (const char* path : {"a", "/a/b", "b", "b/c", "/a/b/c", "c", "/a", "/b", "a/c/b", "/a[b=1]",
                           "a/b[c = -1.0]/c", "b[c/b=1]", "c[b=--1]/a"}) {
    for (const XmlNode& from : {document.node(), document.root()}) {
      for (const XmlNode& node : from.selectAll(path)) told += outline(node) + ",";
      const XmlNode first = from.selectSingle(path);
      told += (first ? outline(first) : "none") + ";";
    }
  }
  return told;
}

/// A document of three names, with white space, texts and CDATA sections in all places.
std::string randomDocument(std::mt19937& random) {
  const std::vector<std::string> texts{"",
                                       " ",
                                       "\n  ",
                                       "x",
                                       " x ",
                                       "Ёж ё",
                                       "&amp;",
                                       "&#32;",
                                       "\r\n\t",
                                       "1 <b/> 2",
                                       "1",
                                       " 01.",
                                       "-1",
                                       "1e0",
                                       "<![CDATA[]]>",
                                       "<![CDATA[ ]]>",
                                       " <![CDATA[1]]>\n",
                                       "1<![CDATA[ <&]]><![CDATA[Ё]]>2"};
  const std::vector<std::string> names{"a", "b", "c"};
  const auto text = [&] { return texts[random() % texts.size()]; };
  std::string document = "<a>";
  std::vector<std::string> open{"a"};
  for (auto left = random() % 30; left > 0; --left) {
    document += text();
    if (random() % 2 == 0 && open.size() > 1) {
      document += "</" + open.back() + ">";
      open.pop_back();
    } else {
      open.push_back(names[random() % names.size()]);
      document += "<" + open.back() + ">";
    }
  }
  for (; !open.empty(); open.pop_back()) document += text() + "</" + open.back() + ">";
  return document;
}

TEST(FlatDocuments, AreReadAsAllOthers) {
  std::mt19937 random(20261121);
  for (int turn = 0; turn < 500; ++turn) {
    const std::string text = randomDocument(random);
    const auto flat = loaded(text);
    // A comment alone asks for the other form.
    const auto other = loaded(text + "<!-- -->");
    ASSERT_EQ(outline(flat->root()), outline(other->root())) << text;
    ASSERT_EQ(selected(*flat), selected(*other)) << text;
    ASSERT_EQ(flat->root().xml(), other->root().xml()) << text;
    // What was written has become libxml2's own tree.
    ASSERT_EQ(outline(flat->root()), outline(other->root())) << text;
    ASSERT_EQ(selected(*flat), selected(*other)) << text;
  }
}

TEST(FlatDocuments, KeepTheirNodesWhenMoreIsAskedThanReading) {
  const auto document = loaded("<a><b>1</b>2<b>3</b></a>");
  const XmlNode root = document->root();
  const std::vector<XmlNode> children = root.children();
  const XmlNode text = children[1];
  EXPECT_EQ(document->node().selectSingle("//b[2]"), children[2]);
  EXPECT_EQ(document->root(), root);
  EXPECT_EQ(root.children(), children);
  EXPECT_EQ(text.text(), "2");
  children[0].setText("new");
  EXPECT_EQ(root.xml(), "<a><b>new</b>2<b>3</b></a>");
  EXPECT_EQ(text.nextSibling(), children[2]);
}

TEST(FlatDocuments, HaveOnlyTheElementThatIsKept) {
  for (const char* path : {"/e/c/d", "/e"}) {
    const auto document = loaded("<e><s>0</s><c>x<d> <f>1</f><f/>2 </d><d/>3</c></e>");
    const XmlNode kept = document->node().selectSingle(path);
    const std::string before = outline(kept);
    document->keepOnly(kept);
    EXPECT_EQ(document->root(), kept);
    EXPECT_EQ(outline(kept), before);
    EXPECT_EQ(document->node().children(), std::vector<XmlNode>{kept});
    EXPECT_FALSE(kept.nextSibling());
    EXPECT_EQ(document->node().text(), kept.text());
    EXPECT_EQ(document->node().selectSingle("/" + kept.name()), kept);
    EXPECT_EQ(static_cast<bool>(document->node().selectSingle("/e")), kept.name() == "e");
    EXPECT_EQ(document->node().xml(), kept.xml());
    EXPECT_EQ(outline(kept), before);
  }
}

TEST(FlatDocuments, KeepNoText) {
  const auto document = loaded("<a>1</a>");
  EXPECT_EQ(test::errorNumberOf([&] { document->keepOnly(document->root().firstChild()); }), 5);
  EXPECT_EQ(test::errorNumberOf([&] { document->keepOnly(document->node()); }), 5);
}

TEST(FlatDocuments, GiveNodesToOthersThatOutliveThem) {
  const auto target = loaded("<t/>");
  {
    const auto source = loaded("<a><b><c>1</c></b></a>");
    const XmlNode b = source->root().firstChild();
    const XmlNode c = b.firstChild();
    target->root().append(b);
    EXPECT_EQ(c.text(), "1");
    c.setText("2");
    EXPECT_EQ(source->root().xml(), "<a/>");
  }
  EXPECT_EQ(target->root().xml(), "<t><b><c>2</c></b></t>");
  EXPECT_EQ(target->node().selectSingle("//c").text(), "2");
  EXPECT_EQ(target->root().firstChild().firstChild().text(), "2");
}

TEST(FlatDocuments, TakeNodesOfOthers) {
  const auto target = loaded("<t><u/></t>");
  const XmlNode u = target->root().firstChild();
  const auto source = loaded("<a><b/></a>");
  u.append(source->root());
  EXPECT_EQ(target->root().xml(), "<t><u><a><b/></a></u></t>");
  EXPECT_EQ(u.firstChild().firstChild().name(), "b");
}

TEST(FlatDocuments, KeepWhatTheirDeclarationSays) {
  const auto document = loaded("<?xml version=\"1.1\" standalone=\"yes\"?><a>1</a>");
  EXPECT_EQ(document->node().xml(), "<?xml version=\"1.1\" standalone=\"yes\"?>\n<a>1</a>\n");
}

TEST(FlatDocuments, EndAtTheDepthAtWhichAllOthersEnd) {
  const auto nested = [](int levels, std::string inside) {
    for (int i = 0; i < levels; ++i) inside = "<a>" + inside + "</a>";
    return Libxml2().createDocument()->loadText(inside);
  };
  for (int levels = 250; levels < 260; ++levels) {
    EXPECT_EQ(nested(levels, "x"), nested(levels, "x<!-- -->")) << levels;
  }
}

TEST(FlatDocuments, TheDocumentItselfStandsOnNoLine) {
  const auto document = loaded("<a>1</a>");
  EXPECT_EQ(document->node().line(), 0);
  EXPECT_EQ(document->node().xml(), "<a>1</a>");
  EXPECT_EQ(document->node().line(), 0);
}

}  // namespace
}  // namespace awizo
