#pragma once

#include "wordexport/clsExport.h"
#include "wordexport/document/clsMSWordObserver.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

/// Records what an export sends to the word processor, by sheet, in the format of the samples' sheets.json. If a sheet
/// file is created twice, only the last version is kept.
class clsSheetRecorder final : public clsMSWordObserver {
public:
    clsSheetRecorder(const clsExport &run, const QString &templatesFolder)
        : m_run(run)
    {
        const QDir folder(templatesFolder);
        for (const QString &file : folder.entryList({QStringLiteral("*.doc")}))
            m_templates[bytesOf(folder.filePath(file))] = QFileInfo(file).completeBaseName();
    }

    /// The record in the format of the samples.
    QJsonObject toJson() const
    {
        QJsonArray order;
        for (const QString &path : m_run.ExportFileCollection)
            order << nameOf(path);
        QJsonArray sheets;
        for (const QString &name : m_names)
            sheets << sheet(name);
        return {{QStringLiteral("FormType"), m_run.form.FormType()}, {QStringLiteral("Order"), order},
            {QStringLiteral("CombinedOrder"), m_combined}, {QStringLiteral("Sheets"), sheets}};
    }

    QStringList order() const
    {
        QStringList names;
        for (const QString &path : m_run.ExportFileCollection)
            names << nameOf(path);
        return names;
    }
    QStringList combinedOrder() const
    {
        QStringList names;
        for (const QJsonValue &name : m_combined)
            names << name.toString();
        return names;
    }

    bool has(const QString &name) const { return m_sheets.contains(name); }
    QString templateOf(const QString &name) const { return at(name).templateName; }
    QJsonArray opsOf(const QString &name) const { return at(name).ops; }

    /// The operations on a sheet, each as a short text: "down 9", "replace {or} = (2)", "cell 1,234.50".
    QStringList linesOf(const QString &name) const
    {
        QStringList lines;
        for (const QJsonValue &op : opsOf(name))
            lines << lineOf(op.toArray());
        return lines;
    }

    /// The texts that replaced a placeholder on a sheet, in order.
    QStringList replacements(const QString &name, const QString &placeholder) const
    {
        QStringList texts;
        for (const QJsonValue &value : opsOf(name)) {
            const QJsonArray op = value.toArray();
            if (op[0].toString() == QLatin1String("replace") && op[1].toString() == placeholder)
                texts << op[2].toString();
        }
        return texts;
    }
    /// The placeholders that were replaced on a sheet, in order.
    QStringList placeholders(const QString &name) const
    {
        QStringList found;
        for (const QJsonValue &value : opsOf(name)) {
            const QJsonArray op = value.toArray();
            if (op[0].toString() == QLatin1String("replace"))
                found << op[1].toString();
        }
        return found;
    }
    /// The cells of a sheet's grids by row; each row ends with the move to the next one.
    QList<QStringList> rows(const QString &name) const
    {
        QList<QStringList> all;
        QStringList row;
        for (const QJsonValue &value : opsOf(name)) {
            const QJsonArray op = value.toArray();
            const QString what = op[0].toString();
            if (what == QLatin1String("cell"))
                row << op[1].toString();
            else if (what == QLatin1String("nextrow")) {
                all << row;
                row.clear();
            }
        }
        if (!row.isEmpty())
            all << row;
        return all;
    }
    int countOf(const QString &name, const QString &operation) const
    {
        int count = 0;
        for (const QJsonValue &value : opsOf(name))
            count += value.toArray()[0].toString() == operation;
        return count;
    }

    static QString lineOf(const QJsonArray &op)
    {
        QString line = op[0].toString();
        for (qsizetype i = 1; i < op.size(); ++i) {
            if (op[i].isObject()) {
                if (op[i].toObject()[QLatin1String("tick")].toBool())
                    line += QStringLiteral(" [tick]");
            } else {
                line += QStringLiteral(" %1").arg(op[i].toVariant().toString());
            }
        }
        return line;
    }

    void opened(const QString &path) override
    {
        const QString name = nameOf(path);
        m_open << name;
        m_typesNotes = false;
        const int made = int(m_run.ExportFileCollection.count(path));
        if (made == 0) { // the document in which the sheets are joined starts as page 1's sheet
            m_combined = QJsonArray {QStringLiteral("1(1).doc")};
            return;
        }
        if (made > m_made[name]) {
            m_made[name] = made;
            if (!m_names.contains(name))
                m_names << name;
            m_sheets[name] = {m_templates.value(bytesOf(path), QStringLiteral("(no template)")), {}};
        }
        add({QStringLiteral("open")});
    }
    void movedDown(int n) override { add({QStringLiteral("down"), n}); }
    void movedRight(int n) override { add({QStringLiteral("right"), n}); }
    void movedToRowStart() override
    {
        // Only the additional information moves to the start of a row before typing.
        m_typesNotes = true;
        add({QStringLiteral("rowstart")});
    }
    void nextRow() override { add({QStringLiteral("nextrow")}); }
    void newParagraph() override { add({QStringLiteral("newpara")}); }
    void tabs(int n) override { add({QStringLiteral("tabs"), n}); }
    void replaced(const QString &find, const QString &text, bool isTick) override
    {
        add({QStringLiteral("replace"), find, text,
            QJsonObject {
                {QStringLiteral("tick"), isTick}, {QStringLiteral("bold"), QStringLiteral("from placeholder")}}});
    }
    void typed(const QString &text, bool isTick, bool bold) override
    {
        if (m_typesNotes)
            add({QStringLiteral("settext"), text});
        else
            add({QStringLiteral("cell"), text,
                QJsonObject {{QStringLiteral("tick"), isTick}, {QStringLiteral("bold"), bold}}});
    }
    void failed(const QString &what, const QString &value) override { add({QStringLiteral("failed"), what, value}); }
    void pageBreak() override { add({QStringLiteral("pagebreak")}); }
    void inserted(const QString &path) override { m_combined << QFileInfo(path).fileName(); }
    void backSpace() override { ++backSpaces; }
    void savedAndClosed() override { m_open.removeLast(); }

    int backSpaces = 0;

private:
    struct Sheet {
        QString templateName;
        QJsonArray ops;
    };

    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QString nameOf(const QString &path) { return QFileInfo(path).completeBaseName(); }

    const Sheet &at(const QString &name) const
    {
        static const Sheet none;
        const auto found = m_sheets.find(name);
        return found == m_sheets.end() ? none : *found;
    }
    QJsonObject sheet(const QString &name) const
    {
        return {{QStringLiteral("Name"), name}, {QStringLiteral("Template"), at(name).templateName},
            {QStringLiteral("Ops"), at(name).ops}};
    }
    void add(const QJsonArray &op)
    {
        if (m_sheets.contains(m_open.last()))
            m_sheets[m_open.last()].ops << op;
    }

    const clsExport &m_run;
    QHash<QByteArray, QString> m_templates;
    /// The open documents, the current one last: a page stays open while its continuation sheets are created.
    QStringList m_open;
    bool m_typesNotes = false;
    QHash<QString, int> m_made;
    QStringList m_names;
    QHash<QString, Sheet> m_sheets;
    QJsonArray m_combined;
};
