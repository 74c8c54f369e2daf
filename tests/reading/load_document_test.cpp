#include "formats/upper/reading/despatch_advice_reader.h"
#include "reading_desk.h"

namespace awizo::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A file under "c:\docs\a.xml", loaded as the reader loads it.
class LoadingADocument : public ::testing::Test, public ReadingDesk {
 protected:
  explicit LoadingADocument(const char* localeName = "ru_RU") : ReadingDesk(localeName) {}

  std::unique_ptr<XmlDocument> document = xml.createDocument();

  bool load(std::string_view bytes) {
    files.put("c:\\docs\\a.xml", bytes);
    return LoadDocument(editor, *document, "c:\\docs\\a.xml");
  }
  std::string rootText() { return document->root() ? document->root().text() : "(none)"; }
};

struct LoadingADocumentInAWesternLocale : LoadingADocument {
  LoadingADocumentInAWesternLocale() : LoadingADocument("en_US") {}
};

TEST_F(LoadingADocument, Utf8IsReadWithAndWithoutADeclaration) {
  EXPECT_TRUE(load("<a>Чай</a>"));
  EXPECT_EQ(rootText(), "Чай");
  EXPECT_TRUE(load("<?xml version=\"1.0\" encoding=\"UTF-8\"?><a>Чай</a>"));
  EXPECT_EQ(rootText(), "Чай");
  EXPECT_TRUE(load("\xEF\xBB\xBF<a>Чай</a>"));
  EXPECT_EQ(rootText(), "Чай");
}

TEST_F(LoadingADocument, ADeclaredSingleByteFileIsRead) {
  EXPECT_TRUE(load("<?xml version=\"1.0\" encoding=\"windows-1251\"?><a>\xD7\xE0\xE9</a>"));
  EXPECT_EQ(rootText(), "Чай");
}

TEST_F(LoadingADocument, AnUndeclaredSingleByteFileIsReadAsTheMachinesText) {
  EXPECT_TRUE(load("<a>\xD7\xE0\xE9</a>"));
  EXPECT_EQ(rootText(), "Чай");
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(LoadingADocumentInAWesternLocale, AnUndeclaredSingleByteFileIsReadAsTheMachinesText) {
  EXPECT_TRUE(load("<a>\xD7\xE0\xE9</a>"));
  EXPECT_EQ(rootText(), "×àé");
}

/// A declaration can't follow the one that is put before it.
TEST_F(LoadingADocument, ASingleByteFileUnderADeclarationWithoutEncodingIsRefused) {
  EXPECT_FALSE(load("<?xml version=\"1.0\"?><a>\xD7\xE0\xE9</a>"));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(LoadingADocument, Utf16IsRead) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : std::u16string_view(u"<a>Чай</a>")) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  EXPECT_TRUE(load(bytes));
  EXPECT_EQ(rootText(), "Чай");
}

TEST_F(LoadingADocument, WhatIsNoXmlAnswersFalse) {
  for (const char* bytes : {"", " ", "text", "<a>", "<a/><b/>", "<a b=1/>"}) {
    EXPECT_FALSE(load(bytes)) << bytes;
    EXPECT_FALSE(document->root());
  }
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(LoadingADocument, AMissingFileIsToldAndAnswersFalse) {
  EXPECT_FALSE(LoadDocument(editor, *document, "c:\\docs\\gone.xml"));
  EXPECT_THAT(takeBoxes(),
              ElementsAre("Произошла ошибка вLoadDocument()|critical|OK|File not found"));
}

TEST_F(LoadingADocument, AMissingFolderIsToldAndAnswersFalse) {
  EXPECT_FALSE(LoadDocument(editor, *document, "c:\\nowhere\\a.xml"));
  EXPECT_EQ(takeBoxes().size(), 1U);
}

TEST_F(LoadingADocument, EntitiesThatMultiplyAreRefused) {
  std::string bomb = "<!DOCTYPE a [<!ENTITY e0 \"eeeeeeeeee\">";
  for (int i = 1; i < 12; ++i) {
    const std::string before = "&e" + std::to_string(i - 1) + ";";
    bomb += "<!ENTITY e" + std::to_string(i) + " \"";
    for (int k = 0; k < 10; ++k) bomb += before;
    bomb += "\">";
  }
  EXPECT_FALSE(load(bomb + "]><a>&e11;</a>"));
  EXPECT_THAT(takeBoxes(), IsEmpty());
}

TEST_F(LoadingADocument, FilesOutsideAreNeverFetched) {
  files.put("c:\\docs\\secret.txt", "secret");
  load("<!DOCTYPE a [<!ENTITY s SYSTEM \"file:///c:/docs/secret.txt\">]><a>&s;</a>");
  EXPECT_EQ(rootText().find("secret"), std::string::npos);
  load("<!DOCTYPE a [<!ENTITY s SYSTEM \"file:///etc/hostname\">]><a>x&s;</a>");
  EXPECT_TRUE(rootText() == "x" || rootText() == "(none)") << rootText();
}

TEST_F(LoadingADocument, AMillionLevelsAreRefused) {
  std::string deep;
  for (int i = 0; i < 1000000; ++i) deep += "<a>";
  EXPECT_FALSE(load(deep));
  for (int i = 0; i < 1000000; ++i) deep += "</a>";
  EXPECT_FALSE(load(deep));
}

TEST_F(LoadingADocument, ItsKindIsItsRootElement) {
  load("<Document-DespatchAdvice/>");
  EXPECT_TRUE(IsDespatchAdvice(*document));
  load("<Document-Order/>");
  EXPECT_FALSE(IsDespatchAdvice(*document));
  EXPECT_FALSE(IsDespatchAdvice(*xml.createDocument()));
}

}  // namespace
}  // namespace awizo::test
