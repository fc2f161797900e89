#include "tests/export/clsExportTest.h"
#include "tests/export/mdDocumentText.h"

#include <map>

// Line breaks in the cells of grids: whatever is typed, each text stays in its own cell.

namespace {

class LineBreaks : public clsExportTest {
protected:
    using Setter = std::function<void(const QString &)>;

    /// Sets a text of an item that can be recognised by `word`.
    template <class Text> void add(const QString &word, Text &text)
    {
        m_setters.emplace_back(word, [&text](const QString &typed) { text = typed; });
    }

    void fill()
    {
        for (int i = 1; i <= 2; ++i) {
            const auto word
                = [i](const char *name) { return QStringLiteral("Q%1%2q").arg(QLatin1String(name)).arg(i); };
            const auto expert = form.AddExpertInvoice();
            add(word("group"), expert->ExpertGroup);
            add(word("type"), expert->ExpertType);
            add(word("other"), expert->OtherCosts);
            const auto joint = form.AddJointInstruction();
            add(word("joint"), joint->ExpertType);
            add(word("party"), joint->PartyName);
            add(word("sol"), joint->Solicitor);
            add(word("cert"), joint->CertificateReference);
            add(word("share"), joint->PercentApportioned);
            add(word("paid"), addDisbursement(QString())->Description);
            const QString counsel = addCounsel(QStringLiteral("7A"), QString());
            addFee(counsel);
            add(word("counsel"), form.CounselCollection().back()->Name);
            const auto hearing = addHearing();
            hearing->BoltOnClaimed = QStringLiteral("10");
            hearing->ExceptionalTravel = QStringLiteral("10");
            add(word("court"), hearing->LevelOfCourt);
            add(word("bolt"), hearing->BoltOnDescription);
            add(word("miles"), hearing->ExceptionalTravelDistance);
            add(word("reason"), hearing->ExceptionalTravelReason);
        }
    }

    /// The row and cell of each word in the finished document.
    std::map<QString, QString> places()
    {
        std::map<QString, QString> found;
        form.CreateFASCollections();
        EXPECT_TRUE(exportClaim());
        const clsDocumentTree document(finished());
        int row = 0;
        for (const pugi::xpath_node &node : document.body.select_nodes(".//w:tr")) {
            ++row;
            int cell = 0;
            for (const pugi::xml_node &one : node.node().children("w:tc")) {
                ++cell;
                const QString text = mdTextBelow(one);
                for (const auto &[word, set] : m_setters)
                    if (text.contains(word))
                        found[word] += QStringLiteral("%1.%2 ").arg(row).arg(cell);
            }
        }
        return found;
    }

    void compare(size_t least)
    {
        fill();
        for (const auto &[word, set] : m_setters)
            set(word);
        const auto alone = places();
        EXPECT_GE(alone.size(), least);
        for (const auto &[word, set] : m_setters) {
            for (const char *more : {"\r\nmore", "\r\nmore\r\nand more", "\r\n"}) {
                set(word + QString::fromLatin1(more));
                EXPECT_EQ(alone, places()) << qPrintable(word);
            }
            set(word);
        }
    }

private:
    std::vector<std::pair<QString, Setter>> m_setters;
};

} // namespace

TEST_F(LineBreaks, LeaveEachTextOfClaim1InItsCell)
{
    includeOnly({1, 4, 6, 7});
    compare(20);
}

TEST_F(LineBreaks, LeaveEachTextOfClaim1AInItsCell)
{
    form.FormType = QStringLiteral("Claim1A");
    includeOnly({1, 5, 6, 7, 8});
    compare(28);
}
