#pragma once

#include <QComboBox>

#include <functional>

/// A list on a screen, with the width of a short text or, for long entries, the width available in the frame. Its
/// entries never widen a screen: the open list is as wide as its entries, and when it is closed the tooltip has the
/// whole of a text that is cut off.
class oScreenList : public QComboBox {
    Q_OBJECT

public:
    explicit oScreenList(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    void showPopup() override;

protected:
    /// Refills the list without signals: `addEntries` adds the entries and returns the one to select; the first if that
    /// is invalid.
    void refill(const std::function<int()> &addEntries);

    bool event(QEvent *event) override;

private:
    int widthFor(const QString &text) const;
    int widestEntry() const;
};
