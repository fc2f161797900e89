#pragma once

#include <QLabel>
#include <QTimer>

#include <memory>

class clsZR3ScheduleOfTimeItem;
class frmScreen;

/// Shows the price of a schedule item in its editor, below the time. Computed by the claim's own pricing on a temporary
/// item.
class oPriceLine : public QLabel {
    Q_OBJECT

public:
    explicit oPriceLine(QWidget *parent);
    ~oPriceLine() override;

    /// Follows the boxes of an editor from now on.
    void Follow(frmScreen &screen);
    /// The shown text, without formatting.
    QString Words() const { return accessibleName(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    bool event(QEvent *event) override;

private:
    void renew();
    void tell(const QString &reason, const QString &result);

    frmScreen *m_screen = nullptr;
    QTimer m_renewal; ///< combines changes of several boxes
    std::shared_ptr<clsZR3ScheduleOfTimeItem> m_item;
};
