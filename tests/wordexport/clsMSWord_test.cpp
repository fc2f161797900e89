#include "wordexport/clsMSWord.h"
#include <gtest/gtest.h>
TEST(clsMSWord, Version){ clsMSWord w; EXPECT_EQ(w.VersionString(), QStringLiteral("2007")); }
