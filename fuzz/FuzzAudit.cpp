#include "fuzz/FuzzAudit.h"

#include "fuzz/FuzzShop.h"
#include "insight/VelAudit.h"
#include "insight/VelAuditRules.h"

#include <QFile>

#include <algorithm>

namespace {

const QString STR_FOLDER = QStringLiteral("audited/");

QByteArray sample(const QString& theFile)
{
    QFile file(QStringLiteral(VELTARM_SOURCE_DIR "/shop-small/") + theFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The folder of a shop that is sound but for the document.
QDir shopWith(const QString& theFile, const QByteArray& theDocument)
{
    static const bool areCopied = [] {
        for (const char* file : {"pricelist.xml", "orderingdetails.xml", "currencies.xml"})
            FuzzShop::write(STR_FOLDER + QLatin1String(file), sample(QLatin1String(file)));
        return true;
    }();
    FUZZ_REQUIRE(areCopied);
    const QString path = FuzzShop::write(STR_FOLDER + theFile, theDocument);
    return QDir(path.chopped(theFile.size()));
}

void askFinding(const VelAudit& theAudit, const VelAuditFinding& theFinding)
{
    FUZZ_REQUIRE(VelAuditRules::find(theFinding.myRule));
    FUZZ_REQUIRE(!theFinding.myMessage.isEmpty() && theFinding.myPlace.isValid() && theFinding.myLength > 0);
    const VelAuditDocument* document = theAudit.shop().document(theFinding.myFile);
    FUZZ_REQUIRE(document);
    FUZZ_REQUIRE(theFinding.myPlace.myLine <= document->myContent.text().lineCount());
    FUZZ_REQUIRE(theFinding.myPlace.myColumn <= theAudit.lineOf(theFinding).toUcs4().size() + 1);
}

} // namespace

void auditDocument(const QString& theFile, const QByteArray& theDocument)
{
    const VelAudit audit(shopWith(theFile, theDocument));
    const QVector<VelAuditFinding>& findings = audit.findings();
    FUZZ_REQUIRE(std::is_sorted(findings.begin(), findings.end()));
    for (const VelAuditFinding& finding : findings)
        askFinding(audit, finding);
    const auto errors = std::count_if(findings.begin(), findings.end(), [&](const VelAuditFinding& theFinding) {
        return theFinding.myFile == theFile && theFinding.myRule == QLatin1String("unreadable");
    });
    FUZZ_REQUIRE(errors == (audit.shop().document(theFile)->myContent.isReadable() ? 0 : 1));
    FuzzShop::write(STR_FOLDER + theFile, sample(theFile));
}
