#pragma once

#include "shell/clsPagesMaker.h"

#include <QDialog>

class QLabel;
class QProgressBar;

/// Says how far the making of a claim's pages is, and lets the user cancel it. It closes by itself.
class frmExportAsPdf : public QDialog {
    Q_OBJECT

public:
    explicit frmExportAsPdf(QWidget *parent = nullptr);

    /// Shows itself until the pages of the claim are made, or not.
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

/// Exports the claim's pages as a PDF of the user's choice. `atHand` is the PDF of the claim as it stands, where there
/// is one already. What keeps it from coming out the user is told in one message.
void mdExportAsPdf(const QByteArray &atHand, QWidget *parent);
