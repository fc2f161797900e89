#pragma once

#include "controls/oStripFigure.h"
#include "controls/oTotalsStrip.h"
#include "preview/oPreviewGrid.h"
#include "preview/oWhySheet.h"
#include "tests/window/clsMainWindowTest.h"

#include <QSignalSpy>

/// Base of tests of the main window's figures.
class clsFiguresTest : public clsMainWindowTest {
protected:
    /// Starts on a claim and waits until its totals are shown.
    void startOn(const char *claim)
    {
        start(sample(claim));
        wait();
    }
    /// Updates the strip and waits for it.
    void renew()
    {
        window->Activate();
        wait();
    }
    oTotalsStrip &strip() const { return control<oTotalsStrip>(*window, "oTotalsStrip"); }
    oStripFigure &figure(const char *key) const
    {
        auto *found = qobject_cast<oStripFigure *>(strip().Item(QString::fromLatin1(key)));
        if (!found)
            throw std::runtime_error(std::string("no figure ") + key);
        return *found;
    }
    oWhySheet &sheet() const { return control<oWhySheet>(*window, "oWhySheet"); }
    oPreviewGrid &grid() const { return control<oPreviewGrid>(*window, "sgPreview"); }

    /// The steps of the sheet, as text and value.
    QStringList steps() const
    {
        QStringList result;
        for (const clsShownStep &step : sheet().Text().steps)
            result << step.text + u' ' + step.value;
        return result;
    }
    QStringList places() const
    {
        QStringList result;
        for (const clsWhyPlace &place : sheet().Text().places)
            result << place.caption;
        return result;
    }
    void press(int key) const { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); }

private:
    void wait() const
    {
        QTest::qWait(100);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !strip().Shown().isEmpty(); }, 5000));
    }
};
