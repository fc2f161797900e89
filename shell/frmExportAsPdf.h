#pragma once

#include "shell/clsPagesMaker.h"

#include <QDialog>

class QLabel;
class QProgressBar;

/// Shows the progress of making a claim's pages and lets the user cancel. Closes by itself.
class frmExportAsPdf : public QDialog {
    Q_OBJECT

public:
    explicit frmExportAsPdf(QWidget *parent = nullptr);

    /// Stays open until the pages are made or have failed.
    clsPagesMaker::clsResult Make();

    const clsPagesMaker &Maker() const { return m_maker; }

    void done(int result) override;

private:
    void build();

    clsPagesMaker m_maker;
    clsPagesMaker::clsResult m_result = clsPagesMaker::Cancelled;
    QLabel *lblProgress;
    QProgressBar *pbProgress;
};

/// Exports the claim's pages as a PDF to a path that the user chooses. `atHand` is an up-to-date PDF of the claim, if
/// there is one. A failure is reported in one message.
void mdExportAsPdf(const QByteArray &atHand, QWidget *parent);
