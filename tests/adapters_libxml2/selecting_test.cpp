
#include "tests/adapters_libxml2/loaded.h"

namespace awizo {
namespace {

using test::errorNumberOf;
using test::loaded;
using test::texts;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int invalidPath = -2147467259;

TEST(Selecting, StepsOfNames) {
  const auto document = loaded("<R><A><B>1</B></A><A><B>2</B><B>3</B></A></R>");
  EXPECT_EQ(document->node().selectSingle("/R/A/B").text(), "1");
  EXPECT_EQ(document->node().selectSingle("R/A/B").text(), "1");
  EXPECT_EQ(document->root().selectSingle("/R/A/B").text(), "1");
  EXPECT_EQ(document->root().selectSingle("A/B").text(), "1");
  EXPECT_THAT(texts(document->root().selectAll("A/B")), ElementsAre("1", "2", "3"));
  EXPECT_FALSE(document->root().selectSingle("R/A/B"));
  EXPECT_FALSE(document->root().selectSingle("B"));
  EXPECT_THAT(document->root().selectAll("B"), IsEmpty());
}

TEST(Selecting, ALaterParentMayHaveWhatTheFirstLacks) {
  const auto document = loaded(
      "<Line><Line-Item/><Line-Item><X/><EAN>1</EAN></Line-Item><Line-Item><EAN>2</EAN></"
      "Line-Item></Line>");
  EXPECT_EQ(document->node().selectSingle("Line/Line-Item/EAN").text(), "1");
}

TEST(Selecting, NamesAreWholeAndExact) {
  const auto document = loaded("<a><EAN1>1</EAN1><ean>2</ean><EA>3</EA><EAN>4</EAN></a>");
  EXPECT_THAT(texts(document->root().selectAll("EAN")), ElementsAre("4"));
}

TEST(Selecting, NamesOfOperatorsAreNamesHere) {
  const auto document = loaded("<a><div><mod>1</mod></div><or>2</or><and>3</and></a>");
  EXPECT_EQ(document->root().selectSingle("div/mod").text(), "1");
  EXPECT_EQ(document->root().selectSingle("or").text(), "2");
  EXPECT_EQ(document->root().selectSingle("and").text(), "3");
}

TEST(Selecting, ANamespaceMakesAnotherName) {
  const auto document = loaded("<a xmlns:p=\"u\"><b xmlns=\"u\">1</b><p:b>2</p:b><b>3</b></a>");
  EXPECT_THAT(texts(document->root().selectAll("b")), ElementsAre("3"));
  EXPECT_THAT(texts(document->root().selectAll("*")), ElementsAre("1", "2", "3"));
}

TEST(Selecting, NamesInRussian) {
  EXPECT_EQ(loaded("<а><б>1</б></а>")->node().selectSingle("/а/б").text(), "1");
}

TEST(Selecting, ComparesAsXPathDoes) {
  const auto document = loaded(
      "<L><Line><I><EAN>0460</EAN><N>1</N></I></Line><Line><I><EAN>460</EAN><N>2</N></I></Line>"
      "<Line><I><EAN>ABC</EAN><N>3</N></I></Line></L>");
  EXPECT_EQ(document->node().selectSingle("/L/Line[I/EAN=460]/I/N").text(), "1");
  EXPECT_EQ(document->node().selectSingle("/L/Line[I/EAN='460']/I/N").text(), "2");
  EXPECT_EQ(document->node().selectSingle("/L/Line[I/EAN=\"ABC\"]/I/N").text(), "3");
  EXPECT_FALSE(document->node().selectSingle("/L/Line[I/EAN=ABC]"));
  EXPECT_FALSE(document->node().selectSingle("/L/Line[I/EAN =461]"));
}

TEST(Selecting, EveryAxisWorks) {
  const auto document = loaded("<a x=\"7\"><b>1</b><c>2</c><b>3</b></a>");
  const XmlNode c = document->root().selectSingle("c");
  EXPECT_EQ(c.selectSingle("..").name(), "a");
  EXPECT_EQ(c.selectSingle(".").text(), "2");
  EXPECT_EQ(c.selectSingle("preceding-sibling::b").text(), "1");
  EXPECT_THAT(texts(c.selectAll("preceding-sibling::b | following-sibling::b | .")),
              ElementsAre("1", "2", "3"));
  EXPECT_EQ(document->node().selectSingle("//b[2]").text(), "3");
  EXPECT_EQ(document->node().selectSingle("//b[last()]").text(), "3");
  EXPECT_EQ(document->root().selectSingle("@x").text(), "7");
  EXPECT_EQ(document->root().selectSingle("@x").name(), "x");
  EXPECT_EQ(document->root().selectSingle("b/text()").text(), "1");
  EXPECT_EQ(document->root().selectSingle("/").name(), "#document");
  EXPECT_TRUE(document->root().selectAll("namespace::*").empty());
}

TEST(Selecting, TheOrderIsThatOfTheDocument) {
  const auto document = loaded("<a><b>1<c>2</c></b><b>3</b></a>");
  EXPECT_THAT(texts(document->node().selectAll("//c | //b")), ElementsAre("12", "2", "3"));
  EXPECT_EQ(document->node().selectSingle("//c | //b").text(), "12");
  const XmlNode last = document->root().selectAll("b")[1];
  EXPECT_EQ(last.selectSingle("preceding::*").text(), "12");
}

TEST(Selecting, AnInvalidPathIsAnError) {
  const auto document = loaded("<a><b>1</b></a>");
  testing::internal::CaptureStderr();
  for (const char* path :
       {"", " ", "/a/", "a//", "b[", "b[]", "b[=1]", "/L/Line[I/EAN=]", "b]", "a b", "1b/", "//",
        "none()", "$x", "p:b", "b[p:c]", "'", "a/b[c=12 34]", "-"}) {
    EXPECT_EQ(errorNumberOf([&] { document->root().selectSingle(path); }), invalidPath) << path;
    EXPECT_EQ(errorNumberOf([&] { document->root().selectAll(path); }), invalidPath) << path;
  }
  EXPECT_EQ(errorNumberOf([&] { document->root().selectSingle(std::string_view("b\0c", 3)); }),
            invalidPath);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(document->root().selectSingle("b").text(), "1");
}

TEST(Selecting, APathThatGivesNoNodesByItsNatureIsAnError) {
  const auto document = loaded("<a/>");
  for (const char* path : {"1", "'text'", "count(*)", "1=1", "string(.)"}) {
    EXPECT_EQ(errorNumberOf([&] { document->root().selectSingle(path); }), invalidPath) << path;
  }
}

TEST(Selecting, AnInvalidPathIsOneInAnEmptyDocumentToo) {
  const auto document = Libxml2().createDocument();
  EXPECT_EQ(errorNumberOf([&] { document->node().selectSingle("/L/Line[EAN=]"); }), invalidPath);
}

TEST(Selecting, APathThatWouldRunForeverIsAnError) {
  std::string text = "<a>";
  for (int i = 0; i < 3000; ++i) text += "<b>x</b>";
  const auto document = loaded(text + "</a>");
  EXPECT_EQ(errorNumberOf([&] { document->node().selectSingle("//*[//*[//*[//*='y']]]"); }),
            invalidPath);
  EXPECT_EQ(document->node().selectSingle("//b[2999]").text(), "x");
}

TEST(Selecting, APathOfAnyLengthIsTaken) {
  const auto document = loaded("<a>1</a>");
  std::string path = "/a";
  std::string parentheses = "a";
  for (int i = 0; i < 100'000; ++i) path += "/a";
  for (int i = 0; i < 100'000; ++i) parentheses = "(" + parentheses;
  EXPECT_EQ(
      errorNumberOf([&] { EXPECT_FALSE(document->node().selectSingle(path.substr(0, 1000))); }), 0);
  EXPECT_THAT(errorNumberOf([&] { document->node().selectSingle(path); }),
              testing::AnyOf(0, invalidPath));
  EXPECT_EQ(errorNumberOf([&] { document->node().selectSingle(parentheses); }), invalidPath);
}

TEST(Selecting, FromATextThereIsNothingBelow) {
  const auto document = loaded("<a>text</a>");
  EXPECT_FALSE(document->root().firstChild().selectSingle("b"));
  EXPECT_THAT(document->root().firstChild().selectAll("b/c"), IsEmpty());
}

TEST(Selecting, ANumberWithAnExponentMakesAnInvalidPath) {
  const auto document = loaded("<a><b>100000</b></a>");
  for (const char* path :
       {"b[.=1e5]", "b[.=1E5]", "b[.=-1e5]", "b[. = 1.0e5 ]", "b[.=1.e5]", "b[.=.1e6]", "b[.=1e+5]",
        "b[.=1e]", "b[1e0]", "b[.=2-1e5]", "b[.='x' or .=1e5]", "/a[b=1e5]", "/a[b = 1e5]/b"}) {
    EXPECT_EQ(errorNumberOf([&] { document->root().selectSingle(path); }), invalidPath) << path;
    EXPECT_EQ(errorNumberOf([&] { document->root().selectAll(path); }), invalidPath) << path;
  }
}

TEST(Selecting, AnExponentIsNoneInNamesAndLiterals) {
  const auto document =
      loaded("<a><b>1e5</b><a1e5>2</a1e5><c-1e5>3</c-1e5><d.1e5>4</d.1e5><п1e5>5</п1e5></a>");
  EXPECT_EQ(document->root().selectSingle("b[.='1e5']").text(), "1e5");
  EXPECT_EQ(document->root().selectSingle("b[.=\"1e5\"]").text(), "1e5");
  EXPECT_EQ(document->root().selectSingle("b[.!=\"'1e5\"]").text(), "1e5");
  EXPECT_EQ(document->root().selectSingle("a1e5").text(), "2");
  EXPECT_EQ(document->root().selectSingle("*[.=2 and self::a1e5]").text(), "2");
  EXPECT_EQ(document->root().selectSingle("child::c-1e5").text(), "3");
  EXPECT_EQ(document->root().selectSingle("child::d.1e5").text(), "4");
  EXPECT_EQ(document->root().selectSingle("п1e5").text(), "5");
}

TEST(Selecting, ATextWithAnExponentIsNoNumber) {
  const auto document = loaded(
      "<R><A><B>1e5</B><C>1</C></A><A><B>1E5</B><B>0100000.0</B><C>2</C><C>3</C></A>"
      "<A><B>100000</B></A></R>");
  EXPECT_EQ(document->node().selectSingle("/R/A[B=100000]/C").text(), "2");
  EXPECT_THAT(texts(document->node().selectAll("/R/A[B=100000]/C")), ElementsAre("2", "3"));
  EXPECT_THAT(texts(document->node().selectAll("R/A[ B = --100000. ]")),
              ElementsAre("1E50100000.023", "100000"));
}

/// The walk must find what the full evaluation finds, whose brackets it doesn't take.
TEST(Selecting, TheWalkComparesNumbersAsTheEvaluationDoes) {
  const auto document = loaded(
      "<R><A><B>1</B><C>a</C></A><A><B>x</B><B> 01.0 </B><C>b</C><C>c</C></A><A><B>-1</B></A>"
      "<A/><A><B><![CDATA[1]]><D>.5</D></B><C>d</C></A><A><D><B>0</B></D><B/><C>e</C></A>"
      "<A xmlns=\"u\"><B>1</B><C>f</C></A><A><B xmlns=\"u\">1</B></A><E><B>1</B></E>text</R>");
  for (const std::string nodes : {"R/A", "/R/A", "A", "/R", "B"}) {
    for (const std::string value : {"B", "D/B", " B\n", "C", "A/B", "/R/A/B", ".", "B/.."}) {
      for (const std::string number : {"1", "-1", "- 1", "--1", " 1.5 ", "0", "-0", ".5", "1.0",
                                       "2", "+1", ".", "-", "", "1 2", "1]", "'1'", "B", "1=1"}) {
        for (const std::string rest : {"", "/C", "/B/D", "C", "//C", "/", "/C/..", "[1]"}) {
          const std::string path = nodes + "[" + value + "=" + number + "]" + rest;
          for (const XmlNode& start :
               {document->node(), document->root(), document->root().firstChild()}) {
            std::vector<XmlNode> evaluated;
            const int error = errorNumberOf([&] { evaluated = start.selectAll("(" + path + ")"); });
            EXPECT_EQ(errorNumberOf([&] { EXPECT_EQ(start.selectAll(path), evaluated); }), error)
                << path;
            EXPECT_EQ(errorNumberOf([&] {
                        const XmlNode first = start.selectSingle(path);
                        EXPECT_EQ(first.handle(),
                                  evaluated.empty() ? nullptr : evaluated.front().handle());
                      }),
                      error)
                << path;
          }
        }
      }
    }
  }
}

/// The walk by names must find what the full evaluation finds, whose brackets it doesn't take.
TEST(Selecting, TheWalkByNamesSelectsWhatTheEvaluationSelects) {
  const auto document = loaded(
      "<a><b><c>1</c><!-- c --><c>2</c></b>text<b "
      "xmlns=\"u\"><c>3</c></b><b><d/><c><c>4</c></c></b>"
      "<c>5</c><b/></a>");
  for (const std::string path :
       {"a", "a/b", "a/b/c", "a/b/c/c", "b", "/a", "/a/b/c", "/b", "a/c", "a/d", "c"}) {
    for (const XmlNode& start :
         {document->node(), document->root(), document->root().firstChild()}) {
      const std::vector<XmlNode> evaluated = start.selectAll("(" + path + ")");
      EXPECT_EQ(start.selectAll(path), evaluated) << path;
      const XmlNode first = start.selectSingle(path);
      EXPECT_EQ(first, evaluated.empty() ? XmlNode(*document, nullptr) : evaluated.front()) << path;
    }
  }
}

}  // namespace
}  // namespace awizo
