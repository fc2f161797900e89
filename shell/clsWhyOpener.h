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

/// Opens the sheet that explains how a figure is computed, for the figures of the strip and the rows of the preview.
/// Computes on a copy of the claim, made on first use and kept while the sheet is open.
class clsWhyOpener : public QObject {
    Q_OBJECT

public:
    /// The sheet is shown over `window`.
    clsWhyOpener(oTotalsStrip &strip, oPreviewGrid &grid, QWidget &window, QObject *parent = nullptr);
    ~clsWhyOpener() override;

    /// Explains the strip's figure with this key.
    void AskStrip(const QString &key);
    /// Explains the selected row of the preview.
    void AskPreview();
    /// The preview has been drawn from the present claim.
    void TellDrawn() { m_drawnIsDue = true; }
    /// Notes the claim's state if the preview was just drawn.
    void TakeDrawnState();
    /// Call when the claim changes, or the figure that the sheet points to.
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
    bool m_drawnIsDue = false; ///< drawn, but m_drawn is not set yet, to save time at the start
};
