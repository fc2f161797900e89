#include "formdata/mdXMLReplaceProblemCharacters.h"

QString ReplaceProblemCharacters(QString text)
{
    text.replace(QChar(180), u'\'');
    text.replace(u'\t', u' ');
    return text;
}
