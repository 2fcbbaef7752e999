#include "host/VelshopAudit.h"

#include "host/VelshopAuditHtml.h"
#include "host/VelshopAuditJson.h"
#include "host/VelshopAuditSarif.h"
#include "host/VelshopAuditText.h"
#include "host/VelshopAuditWatch.h"
#include "host/VelshopCommandLine.h"
#include "host/VelshopError.h"
#include "host/VelshopExitCode.h"
#include "host/VelshopOptions.h"
#include "host/VelshopOutputFile.h"
#include "insight/VelAudit.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTextStream>
#include <QTime>

using namespace VelshopOptions;

namespace {

int exitCodeOf(const VelAudit& theAudit)
{
    if (!theAudit.isReadable())
        return EXIT_BAD_INPUT;
    const bool isClean = theAudit.count(SEVERITY_ERROR) == 0 && theAudit.count(SEVERITY_WARNING) == 0;
    return isClean ? EXIT_DONE : EXIT_FOUND;
}

void print(const VelAudit& theAudit, const VelshopAuditArguments& theArguments, QTextStream& theOutput)
{
    if (theArguments.myIsSarif)
        theOutput << VelshopAuditSarif::ofFindings(theAudit, QDir(theArguments.myAccount));
    else if (theArguments.myIsJson)
        theOutput << VelshopAuditJson::ofFindings(theAudit);
    else
        VelshopAuditText::printFindings(theAudit, theOutput);
}

int auditOnce(const VelshopAuditArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    const QDir folder(theArguments.myAccount);
    const VelAudit audit(folder);
    if (!theArguments.myHtmlFile.isEmpty() &&
        !VelshopOutputFile::write(theArguments.myHtmlFile, VelshopAuditHtml::page(audit, folder), theError))
        return EXIT_BAD_INPUT;
    print(audit, theArguments, theOutput);
    return exitCodeOf(audit);
}

// ---- watching

QStringList documentFiles(const QString& theFolder)
{
    QStringList files;
    for (const QString& file : VelAuditShop::files(QDir(theFolder)))
        files.append(QDir(theFolder).filePath(file));
    return files;
}

QStringList documentFolders(const QString& theFolder)
{
    QStringList folders{theFolder};
    for (const VelDocumentDescription* document : VelDocumentDescription::all())
        folders.append(QFileInfo(QDir(theFolder).filePath(document->file())).path());
    folders.removeDuplicates();
    return folders;
}

void auditTimed(const VelshopAuditArguments& theArguments, QTextStream& theOutput)
{
    VelshopError error;
    QElapsedTimer timer;
    timer.start();
    auditOnce(theArguments, theOutput, error);
    if (!error.isEmpty())
        theOutput << error.text() << '\n';
    theOutput << QStringLiteral("%1: checked in %2 ms; Ctrl-C ends")
                     .arg(QTime::currentTime().toString(QStringLiteral("hh:mm:ss")))
                     .arg(timer.elapsed())
              << "\n\n";
    theOutput.flush();
}

int watch(const VelshopAuditArguments& theArguments, QTextStream& theOutput)
{
    auditTimed(theArguments, theOutput);
    const VelshopAuditWatch watch(
        documentFolders(theArguments.myAccount), [&] { return documentFiles(theArguments.myAccount); },
        [&] { auditTimed(theArguments, theOutput); });
    return QCoreApplication::exec();
}

int listRules(const VelshopAuditArguments& theArguments, QTextStream& theOutput)
{
    if (theArguments.myIsJson)
        theOutput << VelshopAuditJson::ofRules();
    else
        VelshopAuditText::printRules(theOutput);
    return EXIT_DONE;
}

/// Some options speak for an answer of their own.
QString contradictionOf(const VelshopAuditArguments& theArguments)
{
    if (theArguments.myIsSarif && theArguments.myIsJson)
        return QStringLiteral("--sarif and --json are two forms of one answer");
    if (theArguments.myIsWatch && (theArguments.myIsSarif || theArguments.myIsJson))
        return QStringLiteral("--watch prints for people, without --sarif and --json");
    if (theArguments.myIsRules &&
        (theArguments.myIsSarif || theArguments.myIsWatch || !theArguments.myHtmlFile.isEmpty()))
        return QStringLiteral("--rules audits nothing, and stands with --json alone");
    return QString();
}

} // namespace

bool readAuditArguments(const VelshopCommandLine& theLine, VelshopAuditArguments& theArguments, VelshopError& theError)
{
    theArguments.myIsSarif = theLine.isSet(STR_SARIF);
    theArguments.myIsRules = theLine.isSet(STR_RULES);
    theArguments.myIsWatch = theLine.isSet(STR_WATCH);
    if (theLine.readFileOption(STR_HTML, theArguments.myHtmlFile, theError))
        theError = contradictionOf(theArguments);
    return theError.isEmpty();
}

int auditAccount(const VelshopAuditArguments& theArguments, QTextStream& theOutput, VelshopError& theError)
{
    if (theArguments.myIsRules)
        return listRules(theArguments, theOutput);
    if (!QDir(theArguments.myAccount).exists()) {
        theError = {theArguments.myAccount, 0, 0, QStringLiteral("there is no such folder")};
        return EXIT_BAD_INPUT;
    }
    if (!VelshopOutputFile::areSafe({theArguments.myHtmlFile}, documentFiles(theArguments.myAccount), theError))
        return EXIT_BAD_INPUT;
    return theArguments.myIsWatch ? watch(theArguments, theOutput) : auditOnce(theArguments, theOutput, theError);
}
