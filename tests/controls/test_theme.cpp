#include "controls/mdTheme.h"

#include <QApplication>
#include <QPalette>

#include <gtest/gtest.h>

TEST(Theme, SurfacesStayLightWhateverTheDesktopSays)
{
    const QPalette palette = QApplication::palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_EQ(Theme::Canvas, palette.color(group, QPalette::Window));
        EXPECT_NE(palette.color(group, QPalette::Window), palette.color(group, QPalette::WindowText));
        EXPECT_NE(palette.color(group, QPalette::Base), palette.color(group, QPalette::Text));
    }
}
