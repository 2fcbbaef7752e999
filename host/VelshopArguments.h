#ifndef VELSHOPARGUMENTS_H
#define VELSHOPARGUMENTS_H

#include "frame/VelEnumerations.h"

#include <QMap>
#include <QString>
#include <QStringList>

/// What the command line asks for.
struct VelshopArguments
{
    QString myCommand;  ///< one of those that the help lists
    QString myAccount;  ///< folder of the key account
    QString myLanguage; ///< of the customer texts, "de" or "en"
    bool myIsJson = false;

    bool myHasGroup = false;
    int myGroup = 0; ///< shipping group to list, or whose bands are shown

    int myArticle = 0;
    int myCount = 0;

    int myPages = 0; ///< of a composed product
    int myMaps = 0;
    int myVideos = 0;
    QMap<QString, int> myTemplates; ///< uses by price class

    QString myCart;          ///< file to bill
    QString myHtmlFile;      ///< page to write, empty for none
    QString myDiscountsFile; ///< description of discounts to write, empty for none
    bool myHasOrderText = false;

    /// The two halves of the order source to price by; INPUT_SOURCE_ANY and DELIVERY_TYPE_ANY leave the choice open.
    VelInputSource myInputSource = INPUT_SOURCE_ANY;
    VelDeliveryType myDeliveryType = DELIVERY_TYPE_ANY;
};

/// Reads the command line. False, with the error in one line, when it can't be understood. `--help` and `--version`
/// print and end the process.
bool readArguments(const QStringList& theCommandLine, VelshopArguments& theArguments, QString& theError);

#endif
