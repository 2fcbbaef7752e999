#include "support/VelTestAccount.h"
#include "support/VelTestVelshop.h"

namespace {

/// Documents that a guide shows, by their file names.
using Documents = QMap<QString, QString>;

const QStringList DOCUMENTS = {"pricelist", "orderingdetails", "currencies", "appearance"};
const QStringList PRICE_LIST_ENTRIES = {"article", "add_on", "paymethod_fee", "transfer", "express_fee"};
const char PRICED_ARTICLE[] = "<article id='1' name='Print' editor_name='Print' group='1' arrangement='trivial'>"
                              "<base_prices/></article>";

QString content(const QString& theFile)
{
    QFile file(VELTARM_SOURCE_DIR "/" + theFile);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// A fragment made whole: sections under the root, entries of a price list in their sections, prices in an article.
/// What is whole, or not well-formed, stays as it is.
QString completed(const QString& theName, const QString& theXml)
{
    QDomDocument source;
    const QString wrapped = QString("<%1>%2</%1>").arg(theName, theXml);
    if (!source.setContent(wrapped) || !source.documentElement().firstChildElement(theName).isNull())
        return theXml;
    QDomDocument result;
    QDomElement root = result.appendChild(result.createElement(theName)).toElement();
    const auto child = [&](QDomElement theParent, const QString& theTag) {
        const QDomElement known = theParent.firstChildElement(theTag);
        return known.isNull() ? theParent.appendChild(result.createElement(theTag)).toElement() : known;
    };
    while (!source.documentElement().firstChildElement().isNull()) {
        const QDomElement element = source.documentElement().firstChildElement();
        QDomElement parent = root;
        if (PRICE_LIST_ENTRIES.contains(element.tagName()))
            parent = child(root, element.tagName() + "s");
        if (element.tagName() == "price" && child(root, "articles").firstChildElement().isNull())
            child(root, "articles").appendChild(parsedElement(PRICED_ARTICLE));
        if (element.tagName() == "price")
            parent = child(child(root, "articles").firstChildElement(), "base_prices");
        parent.appendChild(element);
    }
    return result.toString(-1);
}

/// Puts the documents in place, those that the guide doesn't show from the sample shop.
void writeAccount(const TestAccount& theAccount, const Documents& theDocuments)
{
    QDir(theAccount.path()).mkpath("icons/payment");
    for (const QString& file : DOCUMENTS + QStringList("icons/payment/filenames"))
        theAccount.write(file + ".xml", content("shop/" + file + ".xml").toUtf8());
    for (auto document = theDocuments.cbegin(); document != theDocuments.cend(); ++document)
        theAccount.write(document.key(), document.value().toUtf8());
}

/// What a guide shows, as a pattern for what is printed: a line of three dots stands for any lines.
QRegularExpression pattern(const QString& theShown)
{
    QString lines;
    for (const QString& line : theShown.split('\n'))
        lines += line == "..." ? QString("(?:.*\n)*?") : QRegularExpression::escape(line) + "\n";
    return QRegularExpression("\\A" + lines + "\\z");
}

/// One row for each command of a console block.
void addCommands(const QString& theGuide, int theLineNumber, const QStringList& theBlock, const Documents& theDocuments)
{
    for (int begin = 0, end = 0; begin < theBlock.size(); begin = end) {
        end = begin + 1;
        while (end < theBlock.size() && !theBlock.at(end).startsWith("$ "))
            ++end;
        const QString place = QString("%1:%2").arg(theGuide).arg(theLineNumber + begin);
        QTest::newRow(qPrintable(place)) << theBlock.at(begin) << theBlock.mid(begin + 1, end - begin - 1).join('\n')
                                         << theDocuments;
    }
}

/// A block is a file of the account from there on, commands, or nothing for this test.
void addBlock(const QString& theGuide, int theLineNumber, const QString& theInfo, const QStringList& theBlock,
              Documents& theDocuments)
{
    const QString language = theInfo.section(' ', 0, 0);
    const QString name = theInfo.section(' ', 1);
    if (theInfo == "console")
        addCommands(theGuide, theLineNumber, theBlock, theDocuments);
    else if (language == "xml" && DOCUMENTS.contains(name))
        theDocuments.insert(name + ".xml", completed(name, theBlock.join('\n')));
    else if (language == "json" && !name.isEmpty())
        theDocuments.insert(name + ".json", theBlock.join('\n'));
    else if (language == "xml" && !name.isEmpty())
        qFatal("%s:%d: an account has no such document", qPrintable(theGuide), theLineNumber);
}

void addGuide(const QString& theGuide)
{
    const QStringList lines = content(theGuide).split('\n');
    Documents documents;
    for (int begin = 0; begin < lines.size(); ++begin) {
        const int indent = lines.at(begin).indexOf("```");
        if (indent < 0 || !lines.at(begin).left(indent).trimmed().isEmpty())
            continue;
        QStringList block;
        int end = begin + 1;
        for (; end < lines.size() && lines.at(end).mid(indent) != "```"; ++end)
            block.append(lines.at(end).mid(indent));
        if (end == lines.size())
            qFatal("%s:%d: the block has no end", qPrintable(theGuide), begin + 1);
        addBlock(theGuide, begin + 2, lines.at(begin).mid(indent + 3), block, documents);
        begin = end;
    }
}

} // namespace

/// What the guides and the README say that velshop prints.
class GuidesTest : public QObject
{
    Q_OBJECT

private slots:
    void console_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<Documents>("documents");
        addGuide("README.md");
        for (const QString& guide : QDir(VELTARM_SOURCE_DIR "/docs").entryList({"*.md"}))
            addGuide("docs/" + guide);
    }

    void console()
    {
        QFETCH(const QString, command);
        QFETCH(const QString, expected);
        QFETCH(const Documents, documents);
        QStringList arguments = QProcess::splitCommand(command);
        QVERIFY2(arguments.size() > 1 && arguments.takeFirst() == "$" &&
                     QFileInfo(arguments.takeFirst()).fileName() == "velshop",
                 "a console block shows velshop alone");
        const TestAccount account;
        if (!documents.isEmpty()) {
            writeAccount(account, documents);
            for (QString& argument : arguments)
                argument = documents.contains(argument) ? account.path(argument) : argument;
            if (!arguments.contains("--account"))
                arguments += {"--account", account.path()};
        }
        const VelshopAnswer answer = velshop(arguments);
        const QString output = QString::fromUtf8(answer.output + answer.errors).remove(account.path() + "/");
        QVERIFY2(pattern(expected).match(output).hasMatch(), qPrintable("velshop prints\n" + output));
    }

    /// Each numbered step of the way of a price names files, and functions that stand in them.
    void stepsOfThePrice()
    {
        const QRegularExpression step(R"(\| \d+ \| (.*) \| (.*) \| .* \|\n)");
        const QRegularExpression code("`([^`]+)`");
        int steps = 0;
        for (auto found = step.globalMatch(content("docs/architecture.md")); found.hasNext(); ++steps) {
            const QRegularExpressionMatch cells = found.next();
            QString source;
            for (auto file = code.globalMatch(cells.captured(1)); file.hasNext();)
                source += content(file.next().captured(1));
            for (auto function = code.globalMatch(cells.captured(2)); function.hasNext();) {
                const QString name = function.next().captured(1);
                QVERIFY2(source.contains(name + "("), qPrintable(cells.captured(0)));
            }
        }
        QCOMPARE(steps, 21);
    }
};

VEL_TEST_MAIN(GuidesTest)
#include "tst_Guides.moc"
