#include "editors/mdExclusiveTicks.h"

#include "controls/oCheckBox.h"

QString mdPairOf(const QString &control)
{
    if (!control.startsWith(QLatin1String("chk")))
        return {};
    for (const QLatin1String ending : {QLatin1String("Yes"), QLatin1String("No")})
        if (control.endsWith(ending))
            return control.chopped(ending.size());
    return {};
}

void mdMakeExclusive(const std::vector<oCheckBox *> &boxes)
{
    for (oCheckBox *box : boxes) {
        QObject::connect(box, &oCheckBox::Click, box, [box, boxes](bool checked) {
            if (!checked)
                return;
            for (oCheckBox *other : boxes)
                if (other != box)
                    other->setChecked(false);
        });
    }
}
