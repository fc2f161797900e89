#include "costing/checking/clsFindingItems.h"

#include "base/mdPrint.h"
#include "formdata/mdClaimLists.h"
#include "formdata/mdItemContent.h"

#include <QCryptographicHash>

namespace {

constexpr char Order[] = "orderid";

QString textOf(pugi::xml_node item, const char *element)
{
    return XMLDecodeText(item.child(element).child_value());
}

} // namespace

pugi::xml_node clsFindingItems::itemOf(const clsFinding &finding, const clsClaimList &list)
{
    auto found = m_items.find(finding.List);
    if (found == m_items.end()) {
        found = m_items.emplace(finding.List, QHash<int, pugi::xml_node>()).first;
        for (const pugi::xml_node item : m_form.XMLNodeToRead().child(list.element).children())
            found->second.insert(textOf(item, Order).toInt(), item);
    }
    return found->second.value(finding.Item);
}

QString clsFindingItems::placeOf(const clsFinding &finding)
{
    const clsClaimList *list = finding.Item > 0 ? mdClaimList(finding.List) : nullptr;
    if (!list)
        return finding.Screen;
    QString name = *list->calledBy ? textOf(itemOf(finding, *list), list->calledBy) : QString();
    name = mdWithoutControls(name.simplified());
    if (name.isEmpty())
        name = QStringLiteral("%1 %2").arg(QLatin1String(list->item)).arg(finding.Item);
    return finding.Screen + QStringLiteral(", ") + name;
}

QString clsFindingItems::keyOf(const clsFinding &finding)
{
    QByteArray content = (finding.Screen + u'\n' + finding.List).toUtf8();
    if (const clsClaimList *list = finding.Item > 0 ? mdClaimList(finding.List) : nullptr)
        content += mdItemContent(itemOf(finding, *list));
    const QByteArray hash = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex().left(32);
    return QStringLiteral("%1 %2 %3").arg(finding.Rule, finding.Property, QString::fromLatin1(hash));
}
