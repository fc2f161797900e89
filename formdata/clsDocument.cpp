#include "formdata/clsDocument.h"

#include "base/clsRunTimeError.h"
#include "formdata/clsZR3Form.h"

#include <QFileInfo>

clsDocument::clsDocument() = default;
clsDocument::~clsDocument() = default;

void clsDocument::replaceForm()
{
    form = std::make_unique<clsZR3Form>();
    m_path = {};
    onDisk.forget();
    lastSave = clsSaved::Never;
}

void clsDocument::takeAsClean()
{
    cleanXML = form->XMLOutput();
}

bool clsDocument::isDirty() const
{
    return form && !form->XMLOutputIs(cleanXML);
}

void clsDocument::givePath(const QString &path)
{
    form->path = path;
    m_path = {form->path(), path};
}

QString clsDocument::filePath() const
{
    if (!form)
        throw clsRunTimeError(clsRunTimeError::ObjectNotSet);
    const QString held = form->path();
    return held == m_path.held ? m_path.real : held;
}

QString clsDocument::copyName() const
{
    const QString real = filePath();
    return real == form->path() ? form->FormFileName() : QFileInfo(real).fileName();
}
