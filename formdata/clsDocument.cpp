#include "formdata/clsDocument.h"

#include "base/clsRunTimeError.h"
#include "formdata/clsZR3Form.h"
#include "formdata/mdXMLChanges.h"

#include <QFileInfo>

clsDocument::clsDocument() = default;
clsDocument::~clsDocument() = default;

void clsDocument::replaceForm()
{
    form = std::make_unique<clsZR3Form>();
    history.clear();
    m_path = {};
    onDisk.forget();
    lastSave = clsSaved::Never;
}

void clsDocument::takeAsClean()
{
    cleanXML = form->XMLOutput();
    m_compared = {form.get(), XMLChanges::count(), cleanXML, false};
}

bool clsDocument::isDirty() const
{
    if (!form)
        return false;
    if (!isCompared())
        m_compared = {form.get(), XMLChanges::count(), cleanXML, !form->XMLOutputIs(cleanXML)};
    return m_compared.isDirty;
}

bool clsDocument::isCompared() const
{
    return m_compared.form == form.get() && form->CountsChanges() && m_compared.changes == XMLChanges::count()
        && m_compared.clean.constData() == cleanXML.constData(); // the same text object, not an equal one
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

std::optional<QDateTime> clsDocument::changedOnDisk()
{
    if (!form || filePath() != onDisk.path())
        return {};
    return onDisk.changedByOthers();
}

QString clsDocument::copyName() const
{
    const QString real = filePath();
    return real == form->path() ? form->FormFileName() : QFileInfo(real).fileName();
}
