#include "editors/mdTypedTexts.h"

#include "base/mdNumberText.h"
#include "editors/frmScreen.h"
#include "editors/mdFieldTexts.h"
#include "editors/mdScreenControls.h"
#include "formdata/clsXMLRecord.h"
#include "formdata/mdItemContent.h"

#include <QApplication>
#include <QCryptographicHash>

#include <algorithm>

namespace {

int orderOf(const clsXMLRecord &item)
{
    return LongFromText(item.field(u"OrderID")->readText());
}

int depthOf(const QWidget &window)
{
    int depth = 0;
    for (const QWidget *widget = window.parentWidget(); widget; widget = widget->parentWidget())
        ++depth;
    return depth;
}

} // namespace

QString mdItemMark(const clsXMLRecord &item)
{
    const clsXMLField *identity = item.field(u"UniqueID");
    const QString uniqueID = identity ? identity->readText() : QString();
    if (!uniqueID.isEmpty())
        return uniqueID;
    const QByteArray content = mdItemContent(item.XMLNodeToRead());
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex().left(32));
}

int mdCharactersOf(const frmScreen &screen, const clsTypedTexts &texts)
{
    qsizetype characters = 0;
    for (const auto &[property, text] : texts.fields)
        for (const clsScreenField &field : screen.Fields())
            if (mdHoldsTyping(field) && mdMemberOf(*field.row) == property)
                characters += text.size();
    return int(characters);
}

clsTypedTexts mdTypedIn(const frmScreen &screen)
{
    const clsScreen &table = screen.Screen();
    clsTypedTexts texts {screen.objectName(), QString::fromUtf8(table.section ? table.section : table.header), 0, {}};
    const QStringList now = mdFieldTexts(screen.Fields());
    const QStringList &before = screen.LoadedTexts();
    for (qsizetype i = 0; i < qMin(now.size(), before.size()); ++i)
        if (now[i] != before[i])
            texts.fields.emplace_back(mdMemberOf(*screen.Fields()[size_t(i)].row), now[i]);
    texts.characters = mdCharactersOf(screen, texts);
    const clsXMLRecord *record = texts.fields.empty() ? nullptr : screen.Record();
    if (record && record->field(u"OrderID")) {
        texts.orderID = orderOf(*record);
        texts.item = mdItemMark(*record);
    }
    return texts;
}

std::vector<clsTypedTexts> mdTypedTexts()
{
    std::vector<const frmScreen *> screens;
    for (const QWidget *window : QApplication::topLevelWidgets())
        if (const auto *screen = qobject_cast<const frmScreen *>(window); screen && screen->isVisible())
            screens.push_back(screen);
    std::sort(screens.begin(), screens.end(),
        [](const frmScreen *a, const frmScreen *b) { return depthOf(*a) < depthOf(*b); });
    std::vector<clsTypedTexts> typed;
    for (const frmScreen *screen : screens)
        if (clsTypedTexts texts = mdTypedIn(*screen); !texts.fields.empty())
            typed.push_back(std::move(texts));
    return typed;
}
