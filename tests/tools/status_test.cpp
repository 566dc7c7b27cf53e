// The words for the statuses of the library. A run of the tool can provoke only some of them, so that they are tested
// here.
#include "tools/status.h"

#include <gtest/gtest.h>

#include <set>

TEST(StatusText, HasWordsOfItsOwnForEachStatus) {
    std::set<std::string> texts;
    for (ZulgStatus status : {StatusOk, StatusPlanKindError, StatusSizeError, StatusNullPointer, StatusFlagError}) {
        const std::string text = spectrum::statusText(status);
        EXPECT_FALSE(text.empty());
        EXPECT_EQ(text.find_first_of("0123456789-\n"), text.find("1, 2, 4, 8")) << text;
        EXPECT_TRUE(texts.insert(text).second) << text;
    }
}

TEST(StatusText, GivesTheNumberOfAnUnknownStatus) {
    EXPECT_NE(spectrum::statusText(-77).find("-77"), std::string::npos);
}
