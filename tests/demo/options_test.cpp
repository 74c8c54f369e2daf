#include "demo/options.h"

#include <gtest/gtest.h>

#include "support/files/files.h"

namespace awizo::demo {
namespace {

std::string complaintAbout(const std::vector<std::string>& arguments) {
  try {
    parseOptions(arguments);
    return "none";
  } catch (const BadOption& error) {
    return error.what();
  }
}

TEST(Options, HaveDefaults) {
  const Options options = parseOptions({});
  EXPECT_EQ(options.port, 0);
  EXPECT_EQ(options.dataFolder, test::projectFolder() / "demo/data");
  EXPECT_EQ(options.pageFolder, test::projectFolder() / "demo/page");
  EXPECT_EQ(options.postedFolder, "posted");
  EXPECT_TRUE(options.faults.empty());
  EXPECT_EQ(options.about, "");
}

TEST(Options, AreTakenInAnyOrder) {
  const Options options = parseOptions({"--fault", "order=drop", "--posted", "p", "--data", "d",
                                        "--port", "65535", "--page", "g", "--fault", "upload=cut"});
  EXPECT_EQ(options.port, 65535);
  EXPECT_EQ(options.dataFolder, "d");
  EXPECT_EQ(options.pageFolder, "g");
  EXPECT_EQ(options.postedFolder, "p");
  ASSERT_EQ(options.faults.size(), 2U);
  EXPECT_EQ(options.faults[1].exchange, Exchange::upload);
}

TEST(Options, ThatAreWrongAreNamed) {
  EXPECT_EQ(complaintAbout({"--port"}), "'--port' needs a value");
  EXPECT_EQ(complaintAbout({"--port", "x"}), "--port takes a number from 0 to 65535, not 'x'");
  EXPECT_EQ(complaintAbout({"--port", "65536"}),
            "--port takes a number from 0 to 65535, not '65536'");
  EXPECT_EQ(complaintAbout({"--fault", "order"}), "--fault takes EXCHANGE=KIND, not 'order'");
  EXPECT_EQ(complaintAbout({"--colour", "red"}), "unknown option '--colour'");
}

}  // namespace
}  // namespace awizo::demo
