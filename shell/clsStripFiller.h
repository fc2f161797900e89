#pragma once

#include <QObject>
#include <QTimer>

class oTotalsStrip;

/// Fills the strip of totals from the open claim, at a moment when the program has nothing else to do. It works on a
/// copy: looking changes nothing.
class clsStripFiller : public QObject {
    Q_OBJECT

public:
    explicit clsStripFiller(oTotalsStrip &strip, QObject *parent = nullptr);

    /// The claim may have changed.
    void Renew();
    /// The claim is no more.
    void Forget();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void Renewed();

private:
    void fill();

    oTotalsStrip &m_strip;
    QTimer m_idle;
};
