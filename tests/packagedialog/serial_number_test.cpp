#include "packagedialog/serial_number.h"

namespace awizo::test {
namespace {

TEST(ContainerCheckDigit, TriplesEverySecondDigitFromTheFirst) {
  EXPECT_EQ(containerCheckDigit("10000000000000000"), 7);
  EXPECT_EQ(containerCheckDigit("01000000000000000"), 9);
  EXPECT_EQ(containerCheckDigit("00000000000000001"), 7);
  EXPECT_EQ(containerCheckDigit("99999999999999999"), 5);
  EXPECT_EQ(containerCheckDigit("00000000000000000"), 0);
}

TEST(SerialNumber, IsEighteenDigitsOfWhichTheLastIsRight) {
  EXPECT_EQ(serialNumberRefusal("106141412345678908"), "");
  EXPECT_EQ(serialNumberRefusal(""), "Не заполнено поле 'серийный номер'");
  for (const char* wrong : {"10614141234567890", "1061414123456789080", "10614141234567890A",
                            "A06141412345678908", " 06141412345678908"}) {
    EXPECT_EQ(serialNumberRefusal(wrong), "Неправильный номер палеты") << wrong;
  }
  EXPECT_EQ(
      serialNumberRefusal("106141412345678907"),
      "Неправильный номер палеты. Последней- контрольной цифре должно быть задано значение 8");
}

}  // namespace
}  // namespace awizo::test
