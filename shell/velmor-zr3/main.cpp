#include "controls/mdTheme.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    mdApplyTheme(application);
    return 0;
}
