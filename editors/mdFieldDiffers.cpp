#include "editors/mdFieldDiffers.h"

#include "base/clsRunTimeError.h"
#include "editors/mdScreenControls.h"
#include "formdata/clsXMLRecord.h"

#include <QByteArray>

namespace {

struct clsContent {
    clsXMLField *field;
    QByteArray content;
};

/// The properties that a row stores; the member of a choice names two, separated by a space.
std::vector<clsContent> contentsOf(const clsScreenRow &row, clsXMLRecord &record)
{
    std::vector<clsContent> contents;
    for (const QString &name : mdMemberOf(row).split(u' '))
        if (clsXMLField *field = record.field(name))
            contents.push_back({field, field->content()});
    return contents;
}

} // namespace

bool mdFieldDiffers(const clsScreenRow &row, const QWidget &control, clsXMLRecord &record)
{
    const std::vector<clsContent> before = contentsOf(row, record);
    bool differs = false;
    try {
        mdStoreControl(row, control, record);
    } catch (const clsRunTimeError &) {
        differs = true;
    }
    for (const clsContent &one : before) {
        differs = differs || one.content != one.field->content();
        one.field->setContent(one.content.constData());
    }
    return differs;
}
