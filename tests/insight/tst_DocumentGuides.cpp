#include "insight/VelDocumentDescription.h"
#include "support/VelTestMain.h"

namespace {

using Document = VelDocumentDescription;

const QString PRICES = "writing-a-price-list.md";
const QString DETAILS = "writing-ordering-details.md";

/// A row of a guide's table of attributes or elements.
struct Row
{
    QString place;   ///< file and line, for messages
    QString context; ///< the heading above, and the row's cells with names
    QStringList names;
    QString fallback; ///< the cell for what is missing
};

QStringList namesIn(const QString& theText)
{
    static const QRegularExpression quoted("`(\\w+)`");
    QStringList names;
    for (auto found = quoted.globalMatch(theText); found.hasNext();)
        names.append(found.next().captured(1));
    return names;
}

QStringList cellsOf(const QString& theLine)
{
    return trimmedParts(theLine.mid(1, theLine.lastIndexOf('|') - 1), '|');
}

/// Reads the tables whose header has names on its left and defaults in the column behind them.
class Guide
{
public:
    explicit Guide(const QString& theFile) : myFile(theFile)
    {
        QFile file(VELTARM_SOURCE_DIR "/docs/" + theFile);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("The guide %s is missing", qPrintable(theFile));
        while (!file.atEnd())
            readLine(QString::fromUtf8(file.readLine()).trimmed());
    }
    QVector<Row> rows() const { return myRows; }

private:
    void readLine(const QString& theLine)
    {
        ++myLine;
        if (!theLine.startsWith('|')) {
            myNameColumns = -1;
            if (theLine.startsWith('#') || theLine.startsWith("**"))
                myHeading = theLine;
        } else if (myNameColumns < 0) {
            const QStringList header = cellsOf(theLine);
            const auto isDefault = [](const QString& theCell) {
                return QStringList{"Default", "If missing", "When it is missing"}.contains(theCell);
            };
            const auto found = std::find_if(header.begin(), header.end(), isDefault);
            myNameColumns = found == header.end() ? 0 : static_cast<int>(found - header.begin());
        } else if (myNameColumns > 0 && !theLine.startsWith("|--")) {
            addRow(cellsOf(theLine));
        }
    }

    /// A section has its default behind what it holds; an empty cell stands for the one above.
    void addRow(QStringList theCells)
    {
        for (int column = 0; column < myNameColumns; ++column)
            if (theCells.at(column).isEmpty())
                theCells[column] = myFormerCells.value(column);
        myFormerCells = theCells;
        const QString cells = theCells.mid(0, myNameColumns).join(' ');
        myRows.append({QString("%1:%2").arg(myFile).arg(myLine), myHeading + ' ' + cells, namesIn(cells),
                       theCells.at(myNameColumns)});
    }

    QString myFile;
    int myLine = 0;
    QString myHeading;
    int myNameColumns = -1; ///< how many columns hold names, 0 in another table, -1 outside of tables
    QStringList myFormerCells;
    QVector<Row> myRows;
};

bool speaksOf(const Row& theRow, const QString& theTag)
{
    return theRow.context.contains(QRegularExpression("\\b" + theTag + "\\b"));
}

/// An attribute, or the element of a text, with the elements by which a row may speak of it.
struct Described
{
    QString name;
    QStringList tags;
    VelValueDescription value;
};

void collect(const VelElementDescription& theElement, QVector<Described>& theValues)
{
    const auto lastTwo = [](const QStringList& thePath) { return thePath.mid(qMax(0, int(thePath.size()) - 2)); };
    const QStringList path = theElement.path().split('/');
    for (const VelValueDescription& value : theElement.attributes())
        if (value.myNeed != NEED_IDLE)
            theValues.append({value.myName, lastTwo(path), value});
    if (theElement.text() && theElement.text()->myType != VelValueDescription::TYPE_LINE)
        theValues.append({theElement.tag(), lastTwo(path.mid(0, path.size() - 1)), *theElement.text()});
    for (const VelElementDescription& child : theElement.children())
        if (child.need() != NEED_IDLE)
            collect(child, theValues);
}

bool tells(const Row& theRow, const Described& theValue)
{
    return theRow.names.contains(theValue.name) &&
           std::any_of(theValue.tags.begin(), theValue.tags.end(),
                       [&theRow](const QString& theTag) { return speaksOf(theRow, theTag); });
}

} // namespace

class DocumentGuidesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const Document* document : Document::all())
            collect(document->root(), myValues[document->kind() == Document::PRICE_LIST ? PRICES : DETAILS]);
    }

    /// A guide tells of each attribute and text that an author may write, with the default that holds.
    void whatIsDescribedIsTold()
    {
        for (const QString& guide : {PRICES, DETAILS}) {
            const QVector<Row> rows = Guide(guide).rows();
            for (const Described& value : qAsConst(myValues[guide]))
                verifyTold(rows, value);
        }
    }

    /// And it tells of no other. The ordering details have a section on shipping times, too.
    void whatIsToldIsDescribed()
    {
        const QVector<Row> rows = Guide(PRICES).rows() + Guide(DETAILS).rows();
        for (const Row& row : rows)
            verifyDescribed(row, myValues[PRICES] + myValues[DETAILS]);
    }

private:
    void verifyTold(const QVector<Row>& theRows, const Described& theValue)
    {
        const auto isRight = [&theValue](const Row& theRow) {
            const bool isDefaultTold = theRow.fallback.contains(theValue.value.myDefault);
            return tells(theRow, theValue) && (isDefaultTold || theValue.value.myNeed == NEED_MUST);
        };
        QVERIFY2(std::any_of(theRows.begin(), theRows.end(), isRight),
                 qPrintable(theValue.tags.join('/') + ": " + theValue.name + ", " + theValue.value.myDefault));
    }

    /// Sections are named as such, with nothing to tell of them but what they hold.
    void verifyDescribed(const Row& theRow, const QVector<Described>& theValues)
    {
        const auto isTold = [&](const QString& theName) {
            return std::any_of(theValues.begin(), theValues.end(), [&](const Described& theValue) {
                return theValue.tags.contains(theName) || (theValue.name == theName && tells(theRow, theValue));
            });
        };
        QVERIFY2(std::all_of(theRow.names.begin(), theRow.names.end(), isTold), qPrintable(theRow.place));
    }

    QMap<QString, QVector<Described>> myValues; ///< by the guide that tells of them
};

VEL_TEST_MAIN(DocumentGuidesTest)
#include "tst_DocumentGuides.moc"
