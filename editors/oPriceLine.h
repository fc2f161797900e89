#pragma once

#include <QLabel>
#include <QTimer>

#include <memory>

class clsZR3ScheduleOfTimeItem;
class frmSection;

/// The price of a schedule item as it stands in its editor, beneath the time. The claim's own arithmetic prices it, on
/// an item that is in no list.
class oPriceLine : public QLabel {
    Q_OBJECT

public:
    explicit oPriceLine(QWidget *parent);
    ~oPriceLine() override;

    /// Follows the boxes of an editor from now on.
    void Follow(frmSection &screen);
    /// What it says, as plain text.
    QString Words() const { return accessibleName(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    bool event(QEvent *event) override;

private:
    void renew();
    void tell(const QString &reason, const QString &result);

    frmSection *m_screen = nullptr;
    QTimer m_renewal; ///< once for all boxes that change together
    std::shared_ptr<clsZR3ScheduleOfTimeItem> m_item;
};
