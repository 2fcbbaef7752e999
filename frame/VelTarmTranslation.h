#ifndef VELTARMTRANSLATION_H
#define VELTARMTRANSLATION_H

#include "frame/VelTarmExport.h"

#include <QString>

/// The texts that a customer reads (wordings of positions, names of express types, the suffix of deprecated products)
/// in another language than the German of the code. The translations travel inside the library.
class VELTARM_EXPORT VelTarmTranslation
{
public:
    /// Lets the texts appear in a language: "en" is translated, "de" takes the translation back. A text with a country,
    /// such as "en_GB", stands for its language. Goes before VelTarmInitializer::setupModule(), since some texts are
    /// taken up while documents are read. False, and nothing changes, for any other language and without an application
    /// object, which owns the translator.
    static bool install(const QString& theLanguage);
};

#endif
