#include "text/Sentence.h"

#include <gtest/gtest.h>

using namespace vexel;

// The English the command line, the MCP server and the recorder print: values
// in their places once (a value holding "%2" stays as it is), and a count's
// plural ending resolved.
TEST(Sentence, SaysItsPatternInEnglish)
{
    EXPECT_EQ((Sentence{"%2 before %1", {{"a"}, {"b"}}}.english()), "b before a");
    EXPECT_EQ((Sentence{"%1 has already quit.", {{"50%2 off"}, {"never"}}}.english()), "50%2 off has already quit.");
    EXPECT_EQ((Sentence{"%1 and %3", {{"only one"}}}.english()), "only one and %3"); // nothing to fill with
    const std::string helpers = "Its %n helper process(es) will end with it.";
    EXPECT_EQ(Sentence(helpers, {}, 1).english(), "Its 1 helper process will end with it.");
    EXPECT_EQ(Sentence(helpers, {}, 32).english(), "Its 32 helper processes will end with it.");
    EXPECT_EQ(Sentence("%n file(s)", {}, 0).english(), "0 files");
    EXPECT_EQ(Sentence("100% (s)ure").english(), "100% (s)ure"); // no count: markers stay text
    EXPECT_EQ(Sentence("ends in %").english(), "ends in %");
}
