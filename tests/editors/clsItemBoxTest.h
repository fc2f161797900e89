#pragma once

#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "tests/editors/clsModalTest.h"

#include <QComboBox>

/// Base of tests of a box for choosing an item of the claim, alone or on a screen.
class clsItemBoxTest : public clsModalTest {
protected:
    template <class Part> static Part &part(const QWidget &box, const char *name)
    {
        auto *found = box.findChild<Part *>(QString::fromUtf8(name));
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }
    static QStringList entries(const QComboBox &list)
    {
        QStringList result;
        for (int entry = 0; entry < list.count(); ++entry)
            result << list.itemText(entry) + u' ' + list.itemData(entry).toString();
        return result;
    }
    static QString addCounsel(const char *name)
    {
        const auto counsel = Form->AddCounsel();
        counsel->Name = QString::fromUtf8(name);
        return counsel->UniqueID();
    }
    static QString addEnhancement(const char *name)
    {
        const auto enhancement = Form->AddEnhancement();
        enhancement->Name = QString::fromUtf8(name);
        return enhancement->UniqueID();
    }
    static std::unique_ptr<frmScreen> edited(const clsScreen &table, clsXMLRecord &record)
    {
        auto screen = std::make_unique<frmScreen>(table);
        screen->Initialise(&record);
        show(*screen);
        return screen;
    }
    template <class Box> static std::unique_ptr<Box> shown()
    {
        auto box = std::make_unique<Box>();
        box->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(box.get()));
        return box;
    }
};
