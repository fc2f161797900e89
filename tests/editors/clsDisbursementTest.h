#pragma once

#include "controls/oAllPurposeBox.h"
#include "controls/oCheckBox.h"
#include "controls/oContentSwitcher.h"
#include "controls/oFrame.h"
#include "controls/oSGrid.h"
#include "tests/editors/clsModalTest.h"

/// The screen of the disbursements: opens its pages by keyboard and lists its items by their descriptions.
class clsDisbursementTest : public clsModalTest {
protected:
    static std::unique_ptr<frmScreen> disbursements() { return opened(QStringLiteral("Disbursements")); }

    static std::shared_ptr<clsZR3Disbursement> add(const char *description, bool counsel = false)
    {
        const auto item = Form->AddDisbursement();
        item->Description = QString::fromUtf8(description);
        item->Counsel = counsel;
        Form->SeparateCounselAndNonCounselDisbursements();
        return item;
    }
    static QStringList texts(const clsZR3Form::DisbursementsList::Collection &collection)
    {
        QStringList result;
        for (const auto &item : collection)
            result << item->Description();
        return result;
    }
    static QStringList counselFees() { return texts(Form->CounselDisbursementsCollection()); }
    static QStringList others() { return texts(Form->NonCounselDisbursementsCollection()); }

    static std::vector<oFrame *> pages(const frmScreen &screen)
    {
        std::vector<oFrame *> result;
        for (oFrame *frame : screen.findChildren<oFrame *>())
            if (frame->ShowExpandCollapseIcon())
                result.push_back(frame);
        return result;
    }
    static QString count(const frmScreen &screen, int page)
    {
        return pages(screen)[size_t(page - 1)]->captionBar()->accessibleDescription();
    }
    /// Moves through the captions by keyboard, from wherever the focus is, opens a page and enters it.
    static void openPage(frmScreen &screen, int page)
    {
        const auto all = pages(screen);
        all[0]->captionBar()->setFocus(Qt::TabFocusReason);
        for (int i = 1; i < page; ++i)
            key(screen, Qt::Key_Down);
        ASSERT_EQ(all[size_t(page - 1)]->captionBar(), screen.focusWidget());
        key(screen, Qt::Key_Return);
        ASSERT_EQ(page, screen.Switcher().OpenPage());
        key(screen, Qt::Key_Tab);
    }
    static oSGrid &grid(const frmScreen &screen, const char *name) { return screen.Box<oSGrid>(name); }
    static bool hasFocus(const frmScreen &screen, const char *name)
    {
        return focusedName(screen) == QString::fromUtf8(name);
    }
    /// Overwrites the field that has the focus.
    static void over(const frmScreen &screen, const QString &text)
    {
        key(screen, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(screen.focusWidget(), text);
    }
    static QAction *entry(const frmScreen &screen, const char *name)
    {
        return screen.findChild<QAction *>(QString::fromUtf8(name));
    }
    static oCheckBox &yes(const frmScreen &screen) { return screen.Box<oCheckBox>("chkExpertsMeetMOJStandardYes"); }
    static oCheckBox &no(const frmScreen &screen) { return screen.Box<oCheckBox>("chkExpertsMeetMOJStandardNo"); }
    static oAllPurposeBox &reasons(const frmScreen &screen)
    {
        return screen.Box<oAllPurposeBox>("txtExpertsMeetMOJStandardReasons");
    }
};
