// Every procedure that a line can call, by the name and the arguments that are documented.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/supplier/supplier.h"

namespace awizo::test {
namespace {

/// A call and what comes back of it: value and changed arguments, or the whole failure.
struct Call {
  const char* line;
  const char* result;
};

std::ostream& operator<<(std::ostream& out, const Call& call) { return out << call.line; }

class CallTest : public testing::TestWithParam<Call> {
 protected:
  Supplier supplier;
};

TEST_P(CallTest, GivesItsResult) {
  Conversation editor = supplier.startOffLine();
  editor.show();
  Json closing = editor.sayText(GetParam().line);
  const Json expected = Json::parse(GetParam().result);
  for (const auto& [name, value] : expected.items()) EXPECT_EQ(closing[name], value) << closing;
  EXPECT_EQ(closing["ok"], !expected.contains("number")) << closing;
  EXPECT_EQ(closing.contains("args"), expected.contains("args")) << closing;
  EXPECT_EQ(closing.contains("value"), expected.contains("value")) << closing;
}

INSTANTIATE_TEST_SUITE_P(
    Conversions, CallTest,
    testing::Values(
        Call{R"({"call":"GetDecimalSeparator"})", R"({"value":","})"},
        Call{R"({"call":"CommaToDot","args":["1,5,"]})", R"({"value":"1.5."})"},
        Call{R"({"call":"DotToComma","args":["1.5"]})", R"({"value":"1,5"})"},
        Call{R"({"call":"FormatFixed","args":["1,2345",2]})", R"({"value":"1,23"})"},
        Call{R"({"call":"NormalizeDecimal","args":["1.5",3]})",
             R"({"value":"1,500","args":["1,5",3]})"},
        Call{R"({"call":"FormatForXml","args":["12",2]})",
             R"({"value":"12.00","args":["12,00",2]})"},
        Call{R"({"call":"FormatForXml","args":["",3]})", R"({"value":"-1","args":["-1",3]})"},
        Call{R"({"call":"MyDouble","args":["1.23456"]})", R"({"value":1.235,"args":["1,23456"]})"},
        Call{R"({"call":"MultiplyToAmount","args":["2,5","1,999"]})", R"({"value":"5.00"})"},
        Call{R"({"call":"FormatDateIso","args":["2026-11-30"]})", R"({"value":"2026-11-30"})"},
        Call{R"({"call":"FormatTimeHm","args":["10:05"]})", R"({"value":"10:05"})"},
        Call{R"({"call":"FormatTimeHm","args":["2026-11-30T10:05:59"]})", R"({"value":"10:05"})"},
        Call{R"({"call":"AddPeriodToDate","args":["2026-01-31","1","802"]})",
             R"({"value":"2026-02-28"})"}));

INSTANTIATE_TEST_SUITE_P(
    HostAndService, CallTest,
    testing::Values(
        Call{R"({"call":"GetBaseUrl","args":["http://h/a/b/c.html"]})",
             R"({"value":"http://h/a/"})"},
        Call{R"({"call":"HasHostDocument"})", R"({"value":false})"},
        Call{R"({"call":"WriteDebugLine","args":["text",4]})", "{}"},
        Call{R"({"call":"OpenDebugLog","args":["c:\\no\\such\\a.log",4]})", "{}"},
        Call{
            R"({"call":"IObjectSafety_GetInterfaceSafetyOptions","args":["{00020400-0000-0000-C000-000000000046}",0,0]})",
            R"({"args":["{00020400-0000-0000-C000-000000000046}",3,1]})"},
        Call{R"({"call":"IObjectSafety_GetInterfaceSafetyOptions","args":[null,0,7]})",
             R"({"args":[null,3,7]})"},
        Call{
            R"({"call":"IObjectSafety_GetInterfaceSafetyOptions","args":["{00000000-0000-0000-C000-000000000046}",0,0]})",
            R"({"number":-2147467262})"},
        Call{
            R"({"call":"IObjectSafety_SetInterfaceSafetyOptions","args":["{00020400-0000-0000-C000-000000000046}",1,1]})",
            "{}"},
        Call{
            R"({"call":"IObjectSafety_SetInterfaceSafetyOptions","args":["{00020400-0000-0000-C000-000000000046}",3,3]})",
            R"({"number":-2147467259})"}));

INSTANTIATE_TEST_SUITE_P(
    Document, CallTest,
    testing::Values(
        Call{R"({"call":"symbolKraj","args":[9,"x"]})", R"({"value":"EE"})"},
        Call{R"({"call":"symbolKraj","args":[-1,"x"]})", R"({"value":"x"})"},
        Call{R"({"call":"indexKraj","args":["ru"]})", R"({"value":-1})"},
        Call{R"({"call":"UstawNaglowki"})", "{}"}, Call{R"({"call":"SetHeader"})", "{}"},
        Call{R"({"call":"SplitCDN","args":["12345678/010108/1234567"]})",
             R"({"value":["12345678","010108","1234567",""]})"},
        Call{R"({"call":"JoinCDN","args":["1","2","3","4"]})", R"({"value":"1/2/3/4"})"},
        Call{R"({"call":"FormatCDNDate","args":["2026-11-30"]})", R"({"value":"301126"})"},
        Call{R"({"call":"IsCDNPartNumeric","args":["П123"]})", R"({"value":true})"},
        Call{R"({"call":"PadCDNPart","args":["П12",8]})", R"({"value":"П0000012"})"},
        Call{R"({"call":"CheckGridRow","args":[1]})", R"({"value":false})"},
        Call{R"({"call":"CheckGridRow","args":[1424]})", R"({"number":381})"},
        Call{R"({"call":"RepaintValidRows"})", "{}"}, Call{R"({"call":"CountValidRows"})", "{}"},
        Call{R"({"call":"CheckAllPacked"})", "{}"},
        Call{R"({"call":"CompleteFromLocalizationCatalog","args":["1"]})", "{}"}));

INSTANTIATE_TEST_SUITE_P(
    Tables, CallTest,
    testing::Values(
        Call{R"({"call":"IndexGrdPozycje","args":[1424,15]})", R"({"value":32767})"},
        Call{R"({"call":"IndexGrdPozycje","args":[1424,16]})",
             R"({"error":"Overflow","number":6})"},
        Call{R"({"call":"IndexGrdOpak","args":[2,3]})", R"({"value":33})"},
        Call{R"({"call":"IndexGrdSuma","args":[1,2]})", R"({"value":5})"},
        Call{R"({"call":"IndexGrdPozycjeDlgDodaj","args":[2,3]})", R"({"value":13})"},
        Call{R"({"call":"GridToString"})", R"({"value":""})"},
        Call{R"({"call":"StringToGrid","args":["2@A@1@1,500"]})", "{}"},
        Call{R"({"call":"RemoveOldPackRef","args":["2@A@1@1$3@B@1@2",["2"]]})",
             R"({"value":"3@B@1@2"})"},
        Call{R"({"call":"GetPackedQuantity","args":["2@A@1@1,500$3@B@1@2,250"]})",
             R"({"value":"3,750"})"},
        Call{
            R"({"call":"PackageRefsToXml","args":["2@A@1@1,5"]})",
            R"({"value":"<Package-Reference><PackageId>2</PackageId><Quantity>1.5</Quantity></Package-Reference>"})"},
        Call{
            R"({"call":"PackageRefsFromXml","args":["<Package-Reference><PackageId>2</PackageId><Quantity>1.5</Quantity></Package-Reference>"]})",
            R"({"value":"2@@1.5"})"},
        Call{R"({"call":"ArrayRemoveItem","args":[[1,"b",null],1]})", R"({"args":[[1,null],1]})"},
        Call{R"({"call":"ArrayRemoveItem","args":["text",0]})",
             R"({"error":"Type Mismatch","number":13})"},
        Call{R"({"call":"ArrayRemoveItem","args":[["a"],5]})",
             R"({"error":"Subscript out of Range","number":9})"},
        Call{R"({"call":"ClearGrdPozycje"})", "{}"}, Call{R"({"call":"ClearGrdOpakowania"})", "{}"},
        Call{R"({"call":"ClearGrdSuma"})", "{}"}, Call{R"({"call":"ClearForm"})", "{}"},
        Call{R"({"call":"PoprawGrdSuma"})", "{}"},
        Call{R"({"call":"MyCalculateWeight"})", R"({"value":"0"})"},
        Call{R"({"call":"MyCalculatePartWeight","args":["2","1.255"]})",
             R"({"value":2.52,"args":["2","1,255"]})"},
        Call{R"({"call":"ClampQuantity","args":["7"]})", R"({"value":"0,000"})"},
        Call{R"({"call":"CheckNumber","args":["7"]})", R"({"value":true})"}));

INSTANTIATE_TEST_SUITE_P(
    Committing, CallTest,
    testing::Values(
        Call{R"({"call":"JednostkiMiaryNazwaToSymbol","args":["Штука"]})", R"({"value":"PCE"})"},
        Call{R"({"call":"ZatwierdzPozycje","args":[1]})", "{}"},
        Call{R"({"call":"ZatwierdzPozycjeOpak","args":[1,false]})", "{}"},
        Call{R"({"call":"PreparePackageArrays","args":[""]})", "{}"},
        Call{R"({"call":"PrepareParents","args":["x"]})", "{}"},
        Call{R"({"call":"FillLines","args":[true]})", "{}"},
        Call{R"({"call":"FillLines2","args":[false]})", "{}"},
        Call{R"({"call":"CheckIsoCountry","args":["(pl)Польша"]})", R"({"args":["(PL)ПОЛЬША"]})"}));

INSTANTIATE_TEST_SUITE_P(
    LineDialog, CallTest,
    testing::Values(
        Call{R"({"call":"DlgDodaj.symbolJednostkiMiary","args":[1]})", R"({"value":"KGM"})"},
        Call{R"({"call":"DlgDodaj.indexJednostkiMiary","args":["kgm"]})", R"({"value":1})"},
        Call{R"({"call":"DlgDodaj.symbolKodVAT","args":[-2]})", R"({"value":"E"})"},
        Call{R"({"call":"DlgDodaj.indexKodVAT","args":["S"]})", R"({"value":0})"},
        Call{R"({"call":"DlgDodaj.symbolStawkaVAT","args":[2]})", R"({"value":"18"})"},
        Call{R"({"call":"DlgDodaj.indexStawkaVAT","args":["10,00"]})", R"({"value":-1})"},
        Call{R"({"call":"DlgDodaj.CheckVAT","args":[0]})", "{}"},
        Call{R"({"call":"DlgDodaj.MyCalculateAmount"})", R"({"value":""})"},
        Call{R"({"call":"DlgDodaj.MyCalculateExpiryDate"})", R"({"value":""})"},
        Call{R"({"call":"DlgDodaj.setFieldsValues","args":[-1]})", "{}"},
        Call{R"({"call":"DlgDodaj.GetMaxQuantity"})", R"({"value":0.0})"},
        Call{R"({"call":"DlgDodaj.UpdatePackedQuantity"})", "{}"},
        Call{R"({"call":"DlgDodaj.IndexGrdPozycje","args":[6553,2]})", R"({"value":32767})"},
        Call{R"({"call":"DlgDodaj.IndexGrdPozycje","args":[6553,3]})", R"({"number":6})"},
        Call{R"({"call":"DlgDodaj.StringToGrid","args":["2@A@1@1$3"]})", "{}"},
        Call{R"({"call":"DlgDodaj.GridToString"})", R"({"value":""})"}));

INSTANTIATE_TEST_SUITE_P(
    Sorting, CallTest,
    testing::Values(Call{R"({"call":"QuickSortU","args":[["b","A","c"],[0,1,2],0,2,3]})",
                         R"({"args":[["b","A","c"],[1,0,2],0,2,3]})"},
                    Call{R"({"call":"DlgDodaj.QuickSortU","args":[["b"],[0],0,-1,1]})",
                         R"({"args":[["b"],[0],0,-1,1]})"},
                    Call{R"({"call":"ReDimSplitArrays","args":[5]})", "{}"},
                    Call{R"({"call":"ReDimSplitArrays","args":[2000000000]})",
                         R"({"error":"Out of memory","number":7})"},
                    Call{R"({"call":"CompareNumbers","args":["2","10"]})", R"({"value":-1})"},
                    Call{R"({"call":"ToNumberOrMinusOne","args":["x"]})", R"({"value":-1.0})"}));

INSTANTIATE_TEST_SUITE_P(
    PackageDialog, CallTest,
    testing::Values(
        Call{R"({"call":"DlgSzczegoly.symbolPackageType","args":[1]})", R"({"value":"201"})"},
        Call{R"({"call":"DlgSzczegoly.indexPackageType","args":["pk"]})", R"({"value":2})"},
        Call{R"({"call":"DlgSzczegoly.PreparePackages","args":[true]})", "{}"},
        Call{R"({"call":"DlgSzczegoly.IsKnownSerial","args":["2"]})", R"({"value":false})"},
        Call{R"({"call":"DlgSzczegoly.IsKnownDescription","args":["A"]})", R"({"value":false})"},
        Call{R"({"call":"DlgSzczegoly.LoadLocalizationDictionary"})", "{}"},
        Call{R"({"call":"DlgSzczegoly.cboxILNLokalizacji_Change_PublicWrapper"})", "{}"}));

TEST(CallOnPackages, GathersAPackageAndWhatLiesInIt) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.show();
  addPackage(editor, "A", serials[0]);
  addPackage(editor, "B", serials[1], 0);
  const Json closing = editor.say({{"call", "GetPackagesRec"}, {"args", {1, Json::array()}}});
  EXPECT_EQ(closing["args"], (Json{1, {"2", "3"}}));
  EXPECT_EQ(editor.call("DlgSzczegoly.IsKnownDescription", {"a"}), true);
}

/// A call during which a box opens.
TEST(CallWithABox, GoesOnAfterTheAnswer) {
  const Supplier supplier;
  Conversation editor = supplier.startOffLine();
  editor.show();
  editor.act({{"call", "GetPackedQuantity"}, {"args", {"2@A@1@x"}}});
  EXPECT_THAT(editor.answerAll(),
              testing::ElementsAre("Произошла ошибка в GetPackedQuantity|critical|Type mismatch"));
  editor.act({{"call", "DlgSzczegoly.Walidacja"}});
  EXPECT_EQ(editor.answerAll().size(), 1U);
  editor.act({{"call", "DlgdodajPule.Walidacja"}});
  EXPECT_EQ(editor.answerAll().size(), 1U);
  editor.act({{"call", "DlgDodaj.Walidacja"}});
  EXPECT_EQ(editor.answerAll().size(), 1U);
  editor.act({{"call", "ValidateHeader"}});
  EXPECT_EQ(editor.answerAll().size(), 1U);
  EXPECT_EQ(editor.finish(), 0);
}

}  // namespace
}  // namespace awizo::test
