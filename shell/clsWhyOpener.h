#pragma once

#include "costing/checking/clsWhy.h"
#include "preview/clsPreviewCells.h"
#include "preview/oWhySheet.h"

#include <QObject>

#include <cstdint>
#include <memory>
#include <optional>

class clsBill;
class clsZR3Form;
class oPreviewGrid;
class oTotalsStrip;

/// Opens the sheet that says how a figure comes about: for the figures of the strip and for the rows of the preview.
/// It looks at a copy of the claim, made when it is first asked and kept while the sheet is open.
class clsWhyOpener : public QObject {
    Q_OBJECT

public:
    /// The sheet lies over `window`.
    clsWhyOpener(oTotalsStrip &strip, oPreviewGrid &grid, QWidget &window, QObject *parent = nullptr);
    ~clsWhyOpener() override;

    /// The figure of a key of the strip.
    void AskStrip(const QString &key);
    /// The row of the preview that is asked about.
    void AskPreview();
    /// The preview shows the claim as it now is.
    void TellDrawn() { m_drawnIsDue = true; }
    /// Notes the claim's state, where the preview was drawn and nothing has happened since.
    void TakeDrawnState();
    /// The claim changes, or what the sheet points at.
    void Close();

    oWhySheet &Sheet() const { return *m_sheet; }

signals:
    void PlaceChosen(const clsWhySource &place);

private:
    const clsBill &bill();
    void openAtRow(int row);
    void moveRow(int rows);
    void goOn(const clsWhyAsked &asked, const QString &about);
    void open(const std::optional<clsWhy> &why, const QString &about);
    void open(const clsWhyText &text);
    std::optional<clsWhy> whyOf(clsPreviewOrigin origin);

    oTotalsStrip &m_strip;
    oPreviewGrid &m_grid;
    oWhySheet *m_sheet;
    std::unique_ptr<clsZR3Form> m_copy;
    std::unique_ptr<clsBill> m_bill;
    QPoint m_at;
    oWhySheet::Point m_point = oWhySheet::Point::Down;
    std::uint64_t m_drawn = 0; ///< the claim's state when the preview was drawn
    bool m_drawnIsDue = false; ///< it was drawn, and the state has still to be noted: the start has no time for it
};
