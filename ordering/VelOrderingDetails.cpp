#include "ordering/VelOrderingDetails.h"

#include "frame/VelChildElements.h"
#include "frame/VelGuardedInstance.h"
#include "ordering/VelTarmShippingGroup.h"
#include "ordering/VelTarmShippingGroupManager.h"
#include "sibling/VelKeyAccount.h"
#include "sibling/VelXMLLoader.h"

namespace {

const QString STR_GROUPS = QStringLiteral("groups");

} // namespace

VelOrderingDetails* VelOrderingDetails::instance()
{
    static QMutex myInstanceMutex;
    static QAtomicPointer<VelOrderingDetails> myInstance;
    return guardedInstance(myInstance, myInstanceMutex, [] { return new VelOrderingDetails; });
}

VelOrderingDetails::VelOrderingDetails()
{
    update();
    connect(VelKeyAccount::instance(), SIGNAL(applicationKeyAccountChanged()), SLOT(update()));
}

void VelOrderingDetails::update()
{
    const QDomElement root =
        VelXMLLoader::loadDocumentElement(VelKeyAccount::instance()->orderingDetailsXMLFileInfo(false));
    updateAvailableShippingGroups(root.firstChildElement(STR_GROUPS));
    emit changed();
}

void VelOrderingDetails::updateAvailableShippingGroups(const QDomElement& theSection)
{
    QMap<int, const VelTarmShippingGroup*>& groups = VelTarmShippingGroupManager::instance()->myShippingGroups;
    groups.clear();
    int position = 0; // counts the document's elements and not the groups kept
    for (const QDomElement& element : VelChildElements(theSection)) {
        const auto* group = new VelTarmShippingGroup(element, position++);
        if (VelKeyAccount::instance()->shippingGroupEnabled(group->id()))
            groups.insert(group->id(), group);
        else
            delete group;
    }
}
