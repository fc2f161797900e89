#include "editors/mdStartDecimalsAtZero.h"

#include "controls/oDecimalBox.h"
#include "editors/frmSection.h"

void mdStartDecimalsAtZero(frmSection &screen)
{
    QObject::connect(&screen, &frmSection::Loaded, &screen, [&screen] {
        if (screen.Record())
            return;
        for (const clsScreenField &field : screen.Fields())
            if (field.row->kind == clsRowKind::Decimal)
                static_cast<oDecimalBox *>(field.control)->setText(QStringLiteral("0"));
    });
}
