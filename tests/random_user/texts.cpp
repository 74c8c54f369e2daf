#include "random_user/texts.h"

#include <map>

namespace awizo::test {
namespace {

using Texts = std::vector<std::string>;

const Texts eans{"9520001010019", "4607000000116", "4607000000123", "12345678", "1"};
const Texts names{"Чай чёрный", "Кофе", "Молоко 2,5 %", "Хлеб \"Бородинский\"", "Ёлка"};
const Texts codes{"B-1", "S-1", "700100", ""};
const Texts ordered{"", "5", "10", "7,5", "12.125", "1 000"};
const Texts quantities{"1", "2", "5", "2,5", "0.125", "3", "4", "0", "3,9999"};
const Texts measures{"", "1", "1,5", "0.25", "12", "-3"};
const Texts ilns{"9520002000026", "9520002001016", "9520002001023", "95200020000260"};
const Texts countries{"PL", "ru", "(BY)Белоруссия", "JP", "", "kz"};
const Texts numbers{"WZ-1", "WZ/2026/7", "ЗК-2026/1147", "a\\b"};
const Texts customs{"12345678", "П12"};
const Texts buyersCodes{"77", "", "417"};
const Texts units{"BOX", "PCE", "Килограмм", ""};
const Texts files{"awizo.xml",   "awizo.xml", "c:\\docs\\b.xml",
                  "/docs/c.xml", "",          "c:\\nowhere\\d.xml"};

const Texts nonsense{"",
                     " ",
                     "abc",
                     "1,2,3",
                     "-1",
                     "1e3",
                     "999999999999",
                     "Чай & кофе",
                     "<тег>",
                     "a]]>b",
                     "2@Поддон@1@1,000",
                     "$",
                     "ёжик в тумане ёжик в тумане ёжик в тумане ёжик в тумане ёжик в тумане",
                     "\xF0\x9F\x98\x80",
                     "5-",
                     "&H10",
                     "(5)",
                     "32768"};

const std::map<std::string, const Texts*, std::less<>> pools{{"txtlEANProdWart", &eans},
                                                             {"txtNazwaProdWart", &names},
                                                             {"txtKodKup", &codes},
                                                             {"txtKodSprzed", &codes},
                                                             {"txtIloscZam", &ordered},
                                                             {"txtIloscPotw", &quantities},
                                                             {"txtCenaNetto", &quantities},
                                                             {"txtAmount", &quantities},
                                                             {"txtCDN1", &customs},
                                                             {"txtCDN3", &customs},
                                                             {"txtCDN4", &codes},
                                                             {"txtQuantity", &quantities},
                                                             {"txtPackageWeight", &measures},
                                                             {"txtPackageLength", &measures},
                                                             {"txtPackageWidth", &measures},
                                                             {"txtPackageHeight", &measures},
                                                             {"cboxILNLokalizacji", &ilns},
                                                             {"comboCountry", &countries},
                                                             {"txtCodeByBuyer", &buyersCodes},
                                                             {"txtNrAwiza", &numbers},
                                                             {"txtNrZam", &numbers},
                                                             {"cboxJednostkaMiary", &units},
                                                             {"txtEdycja", &quantities},
                                                             {"txtAwizoPlik", &files},
                                                             {"cboxEANProd", &eans},
                                                             {"cboxNazwaProd", &names}};

std::string description(Dice& dice) {
  static const Texts kinds{"Поддон", "Коробка", "Ящик", "Пачка"};
  return dice.pick(kinds) + " " + std::to_string(dice.below(1000)) + (dice.percent(5) ? " " : "");
}

}  // namespace

std::string containerCode(Dice& dice) {
  std::string code;
  int sum = 0;
  for (int place = 0; place < 17; ++place) {
    const int digit = dice.below(10);
    sum += place % 2 == 0 ? 3 * digit : digit;
    code += static_cast<char>('0' + digit);
  }
  const int right = (10 - sum % 10) % 10;
  return code + std::to_string(dice.percent(95) ? right : dice.below(10));
}

std::string typedText(Dice& dice, std::string_view field) {
  if (dice.percent(6)) return dice.pick(nonsense);
  if (field == "txtSerialNumberN") return containerCode(dice);
  if (field == "txtPackageDesc") return description(dice);
  const auto found = pools.find(field);
  return found == pools.end() ? dice.pick(names) : dice.pick(*found->second);
}

}  // namespace awizo::test
