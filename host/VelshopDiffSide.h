#ifndef VELSHOPDIFFSIDE_H
#define VELSHOPDIFFSIDE_H

#include "host/VelshopArguments.h"
#include "host/VelshopError.h"
#include "insight/VelShopSnapshot.h"

#include <QProcess>
#include <QStringList>

class QTextStream;
class VelshopCommandLine;

/// Arguments of `velshop snapshot`, which is one side of `velshop diff`.
struct VelshopSnapshotArguments : VelshopArguments
{
    QString myShop; ///< folder of an account, or a price list beside the other documents of the account
    QStringList myCarts;
};

bool readSnapshotArguments(const VelshopCommandLine& theLine, VelshopSnapshotArguments& theArguments,
                           VelshopError& theError);

/// Writes the snapshot of the shop to standard output, for VelshopDiffSide. The exit code; for any but 0 the error.
int takeSnapshot(const VelshopSnapshotArguments& theArguments, QTextStream& theOutput, VelshopError& theError);

/// One of the shops to compare, read by a process of its own: a registry that has read another price list before would
/// keep its names and sizes.
class VelshopDiffSide
{
public:
    /// Starts reading. Several sides are read at once.
    explicit VelshopDiffSide(const VelshopSnapshotArguments& theArguments);

    bool isRunning() const { return myProcess.state() != QProcess::NotRunning; }

    /// What was read, when nothing is running any more. False, with the reason of that process, for a shop that can't
    /// be read.
    bool take(VelShopSnapshot& theSnapshot, VelshopError& theError);

private:
    QProcess myProcess;
    QString myShop;
};

#endif
