#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "sibling/VelKeyAccount.h"
#include "support/VelTestMain.h"

namespace {

const char* const WRONG_TAG = "VelTarmShippingGroup::parseShippingGroup(const QDomElement &), Tag name is not group";

const VelTarmShippingGroup* groupOfId(int theId)
{
    return VelTarmShippingGroupManager::instance()->shippingGroup(theId);
}

/// Id, transfer model, limit of items, last change.
QString text(const VelTarmShippingGroup& theGroup)
{
    return QString::asprintf("%d %d %d ", theGroup.id(), theGroup.transferModel(), theGroup.maxOrderItems()) +
           theGroup.lastChange().toString(Qt::ISODate);
}

/// A row of the table of the test that is being set up.
template <typename... Cell>
void row(const char* theName, const Cell&... theCells)
{
    (QTest::newRow(theName) << ... << theCells);
}

} // namespace

class TestShippingGroups : public QObject
{
    Q_OBJECT

private slots:
    void attributes_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("expected");
        row("none", "", "-1 -1 -1 1970-05-26T09:30:00");
        row("all", "id='4' transfer_model='2' max_order_items='50' last_change='2024-03-01T08:00:00'",
            "4 2 50 2024-03-01T08:00:00");
        row("malformed", "id='four' transfer_model='3' max_order_items='1,5' last_change='1.3.2024'", "-1 -1 -1 ");
        row("combined models, no time", "id='0' transfer_model='1,2' last_change='2024-03-01'",
            "0 3 -1 2024-03-01T00:00:00");
    }

    void attributes()
    {
        QFETCH(QString, attributes);
        const VelTarmShippingGroup group(parsedElement(QStringLiteral("<group %1/>").arg(attributes)), 3);
        QTEST(text(group), "expected");
        QVERIFY(group.name().isNull());
        QCOMPARE(group.priceListTabPosition(), 3);
    }

    void wrongTag()
    {
        QTest::ignoreMessage(QtWarningMsg, WRONG_TAG);
        const VelTarmShippingGroup group(parsedElement(QStringLiteral("<Group id='4' name='n' max_order_items='5'/>")),
                                         9);
        QCOMPARE(text(group), QStringLiteral("-1 -1 -1 ")); // without the fixed date, too
        QVERIFY(group.name().isNull());
        QCOMPARE(group.priceListTabPosition(), 9);
    }

    void document()
    {
        VelKeyAccount::instance()->setShippingGroupEnabled(11, false);
        VelKeyAccount::instance()->setShippingGroupEnabled(-5, true);
        QTest::ignoreMessage(QtWarningMsg, WRONG_TAG);
        load("<o><groups><group id='11' name='disabled'/><group id='12' name='first' max_order_items='5'/>"
             "<other id='13' name='of another tag'/><group id='-1' name='negative'/><group id='-5' name='enabled'/>"
             "<group id='12' name='later' transfer_model='2'/><group id='14' transfer_model='1'/></groups>"
             "<groups><group id='15' name='of a second section'/></groups></o>");
        const VelTarmShippingGroupManager* manager = VelTarmShippingGroupManager::instance();
        for (const int missing : {11, 13, -1, 15}) {
            QVERIFY(!groupOfId(missing));
            QCOMPARE(int(manager->transferModel(missing)), -1);
            QVERIFY(manager->shippingGroupName(missing).isEmpty());
            QCOMPARE(manager->maxOrderItems(missing), -1);
        }
        // The later of two replaces the earlier with all its attributes.
        QCOMPARE(manager->shippingGroupName(12), QStringLiteral("later"));
        QCOMPARE(int(manager->transferModel(12)), 2);
        QCOMPARE(manager->maxOrderItems(12), -1);
        QCOMPARE(manager->shippingGroupName(-5), QStringLiteral("enabled"));
        // The position counts every element of the document, the dropped ones too.
        QCOMPARE(groupOfId(-5)->priceListTabPosition(), 4);
        QCOMPARE(groupOfId(14)->priceListTabPosition(), 6);
        QVERIFY(lessThanPriceListTabPosition(groupOfId(-5), groupOfId(12)));
        QVERIFY(!lessThanPriceListTabPosition(groupOfId(12), groupOfId(12)));
    }

    void reload_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("name"); // of the group 21
        row("renamed", QByteArray("<o><groups><group id='21' name='new'/></groups></o>"), "new");
        row("no section", QByteArray("<o><deeper><groups><group id='21'/></groups></deeper></o>"), "");
        row("empty file", QByteArray(), "");
        row("no XML", QByteArray("<o><groups><group id='21' name='x'/>"), "");
    }

    void reload()
    {
        QFETCH(QByteArray, content);
        load("<o><groups><group id='21' name='old'/></groups></o>");
        const VelTarmShippingGroup* old = groupOfId(21);
        QSignalSpy changed(VelOrderingDetails::instance(), &VelOrderingDetails::changed);
        if (!content.endsWith("</o>"))
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^VelXMLLoader::")));
        load(content);
        QCOMPARE(changed.count(), 1);
        QVERIFY(groupOfId(21) != old);
        QTEST(VelTarmShippingGroupManager::instance()->shippingGroupName(21), "name");
        QCOMPARE(old->name(), QStringLiteral("old")); // a pointer handed out before stays usable
    }

private:
    /// Makes the document the key account's and lets it be read as at a change of the key account.
    void load(const QByteArray& theDocument)
    {
        QFile file(myKeyAccount.filePath(QStringLiteral("orderingdetails.xml")));
        if (!file.open(QIODevice::WriteOnly) || file.write(theDocument) != theDocument.size())
            qFatal("The test can't write its own file.");
        file.close();
        VelOrderingDetails::instance(); // from now on it follows the key account
        VelKeyAccount::instance()->activate(QDir(myKeyAccount.path()));
    }

    QTemporaryDir myKeyAccount;
};

VEL_TEST_MAIN(TestShippingGroups)
#include "tst_ShippingGroups.moc"
