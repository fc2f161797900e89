#pragma once

#include <QComboBox>

#include <functional>

/// A list of a screen, in one of two widths: that of a short text, or, for long entries, whatever the frame has. Its
/// entries never make a screen wider than its window: opened, it is as wide as they are, and closed, a text that is cut
/// is whole in the tooltip.
class oScreenList : public QComboBox {
    Q_OBJECT

public:
    explicit oScreenList(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    void showPopup() override;

protected:
    /// Fills the list anew and tells nobody: `addEntries` adds its entries and returns which of them to select. The
    /// first is, where there is no such entry.
    void refill(const std::function<int()> &addEntries);

    bool event(QEvent *event) override;

private:
    int widthFor(const QString &text) const;
    int widestEntry() const;
};
