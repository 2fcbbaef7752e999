#ifndef VELAUDITSITE_H
#define VELAUDITSITE_H

#include "insight/VelAuditReport.h"
#include "insight/VelAuditShop.h"

/// An attribute that stands in an element, or the element's text, with what is known of it: what a value is checked as.
class VelAuditSite
{
public:
    VelAuditSite(const VelAuditDocument& theDocument, const QDomElement& theElement,
                 const VelElementDescription& theElementDescription, const VelValueDescription& theDescription,
                 VelAuditReport& theReport);

    const QDomElement& element() const { return myElement; }
    const VelElementDescription& elementDescription() const { return myElementDescription; }
    const VelValueDescription& description() const { return myDescription; }
    bool isAttribute() const { return !myDescription.myName.isNull(); }
    /// The value as it is written.
    const QString& text() const { return myText; }
    /// The attribute's name, of a text the element's tag.
    QString name() const;
    /// Both, the value in quotes: `price "1,49"`.
    QString quoted() const;

    /// What the library's own conversions make of it: whether they take it, and as what.
    bool isWholeNumber(int& theNumber) const;
    bool isBool() const;
    bool isDateTime() const;

    /// What a value counts as that isn't taken, and what that means: "it counts as 0, so ...".
    QString consequence() const;
    /// Whether prices, charges or the whole article hang on it.
    bool isGrave() const;
    /// Whether it is an attribute of a price entry.
    bool isOfPrice() const;

    /// A finding at the value, with the gravest severity of the rule or as a warning.
    VelAuditFinding& report(const char* theRule, const QString& theMessage, bool theIsGrave) const;
    VelAuditFinding& report(const char* theRule, const QString& theMessage) const;

    /// Whether prices, charges or the whole article hang on a value.
    static bool isGrave(const VelElementDescription& theElement, const VelValueDescription& theValue);
    /// What it means that the default of a value counts, ", so ..." or empty.
    static QString meaningOfDefault(const QDomElement& theElement, const VelElementDescription& theDescription,
                                    const VelValueDescription& theValue);

private:
    const VelAuditDocument& myDocument;
    const QDomElement myElement;
    const VelElementDescription& myElementDescription;
    const VelValueDescription& myDescription;
    VelAuditReport& myReport;
    const QString myText;
};

#endif
