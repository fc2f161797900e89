#include "editors/mdLoadMenuFromCollection.h"

#include "base/clsRunTimeError.h"
#include "editors/mdFormatTextForMenu.h"

#include <QAction>
#include <QMenu>

#include <algorithm>

namespace {

const clsXMLField &property(const clsXMLRecord &record, QStringView name)
{
    const clsXMLField *field = record.field(name);
    if (!field)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    return *field;
}

/// Sorts numbers by value, everything else by characters. Equal entries keep the order of the collection.
void sort(std::vector<clsMenuItem> &items, QStringView name, clsMenuOrder order)
{
    const auto less = [name](const clsMenuItem &a, const clsMenuItem &b) {
        const clsXMLField &first = property(*a.record, name);
        const clsXMLField &second = property(*b.record, name);
        if (first.property().kind == clsXMLKind::Long)
            return first.readLong() < second.readLong();
        return first.readText() < second.readText();
    };
    std::stable_sort(items.begin(), items.end(), [&](const clsMenuItem &a, const clsMenuItem &b) {
        return order == clsMenuOrder::Ascending ? less(a, b) : less(b, a);
    });
}

} // namespace

void mdLoadMenuFromCollection(QMenu &menu, std::vector<clsMenuItem> items, QStringView captionProperty,
    QStringView sortProperty, clsMenuOrder order)
{
    QAction *first = menu.actions().isEmpty() ? menu.addAction(QString()) : menu.actions().constFirst();
    first->setVisible(true);
    for (QAction *action : menu.actions().mid(1)) {
        menu.removeAction(action);
        action->deleteLater();
    }
    if (items.empty()) {
        first->setText(QStringLiteral("No items available"));
        first->setEnabled(false);
        return;
    }
    if (!sortProperty.isEmpty())
        sort(items, sortProperty, order);
    for (const clsMenuItem &item : items) {
        const QString caption = property(*item.record, captionProperty).readText();
        menu.addAction(mdFormatTextForMenu(caption))->setData(item.index);
    }
    first->setVisible(false);
}
