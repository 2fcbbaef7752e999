#include "ordering/VelOrderingDetails.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "support/VelTestAccount.h"

namespace {

const char* const WRONG_TAG = "VelTarmShippingGroup::parseShippingGroup(const QDomElement &), Tag name is not group";

const VelTarmShippingGroup* groupOfId(int theId)
{
    return VelTarmShippingGroupManager::instance()->shippingGroup(theId);
}

} // namespace

class TestShippingGroups : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        myAccount.write("pricelist.xml", "<p/>");
        myAccount.activateWithDetails("<o/>");
        VelOrderingDetails::instance(); // from now on it follows the key account
    }

    void attributes_data()
    {
        readTable(R"(
            row             | element | expected
            none            | <group/> | -1 -1 -1 1970-05-26T09:30:00
            all             | <group id='4' transfer_model='2' max_order_items='50' last_change='2024-03-01T08:00:00'/> | 4 2 50 2024-03-01T08:00:00
            malformed       | <group id='four' transfer_model='3' max_order_items='1,5' last_change='1.3.2024'/> | -1 -1 -1
            combined models | <group id='0' transfer_model='1,2' last_change='2024-03-01'/> | 0 3 -1 2024-03-01T00:00:00
            wrong tag       | <Group id='4' name='n' max_order_items='5'/> | -1 -1 -1
        )");
    }

    void attributes()
    {
        const MessageCatcher messages;
        const VelTarmShippingGroup group(parsedElement(cell("element")), 3);
        const QString text = QStringLiteral("%1 %2 %3 %4")
                                 .arg(group.id())
                                 .arg(group.transferModel())
                                 .arg(group.maxOrderItems())
                                 .arg(group.lastChange().toString(Qt::ISODate));
        QCOMPARE(text.trimmed(), cell("expected"));
        QVERIFY(group.name().isNull());
        QCOMPARE(group.priceListTabPosition(), 3);
        QCOMPARE(messages.texts().join('\n'), cell("element").startsWith("<G") ? WRONG_TAG : "");
    }

    void document()
    {
        VelKeyAccount::instance()->setShippingGroupEnabled(11, false);
        VelKeyAccount::instance()->setShippingGroupEnabled(-5, true);
        QTest::ignoreMessage(QtWarningMsg, WRONG_TAG);
        myAccount.activateWithDetails(R"(<o><groups>
            <group id='11' name='disabled'/><group id='12' name='first' max_order_items='5'/>
            <other id='13' name='of another tag'/><group id='-1' name='negative'/><group id='-5' name='enabled'/>
            <group id='12' name='later' transfer_model='2'/><group id='14' transfer_model='1'/></groups>
            <groups><group id='15' name='of a second section'/></groups></o>)");
        const VelTarmShippingGroupManager* manager = VelTarmShippingGroupManager::instance();
        for (const int missing : {11, 13, -1, 15}) {
            QVERIFY(!groupOfId(missing));
            QCOMPARE(int(manager->transferModel(missing)), -1);
            QVERIFY(manager->shippingGroupName(missing).isEmpty());
            QCOMPARE(manager->maxOrderItems(missing), -1);
        }
        // The later of two replaces the earlier with all its attributes.
        QCOMPARE(manager->shippingGroupName(12), "later");
        QCOMPARE(int(manager->transferModel(12)), 2);
        QCOMPARE(manager->maxOrderItems(12), -1);
        // The position counts every element of the document, the dropped ones too.
        QCOMPARE(groupOfId(-5)->priceListTabPosition(), 4);
        QCOMPARE(groupOfId(14)->priceListTabPosition(), 6);
        QVERIFY(lessThanPriceListTabPosition(groupOfId(-5), groupOfId(12)));
        QVERIFY(!lessThanPriceListTabPosition(groupOfId(12), groupOfId(12)));
    }

    void reload()
    {
        myAccount.activateWithDetails("<o><groups><group id='21' name='old'/></groups></o>");
        const VelTarmShippingGroup* old = groupOfId(21);
        myAccount.activateWithDetails("<o><groups><group id='21' name='new'/></groups></o>");
        QVERIFY(groupOfId(21) != old);
        QCOMPARE(groupOfId(21)->name(), "new");
        QCOMPARE(old->name(), "old"); // a pointer handed out before stays usable
        myAccount.activateWithDetails("<o><deeper><groups><group id='21'/></groups></deeper></o>");
        QVERIFY(!groupOfId(21));
    }

private:
    const TestAccount myAccount;
};

VEL_TEST_MAIN(TestShippingGroups)
#include "tst_ShippingGroups.moc"
