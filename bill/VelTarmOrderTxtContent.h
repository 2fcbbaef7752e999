#ifndef VELTARMORDERTXTCONTENT_H
#define VELTARMORDERTXTCONTENT_H

#include <QDomElement>
#include <QHash>
#include <QString>
#include <QStringList>

/// The lines that an order carries for an article: a head and lines of the form KEY=value.
class VelTarmOrderTxtContent
{
public:
    /// Reads an article's element, see update().
    explicit VelTarmOrderTxtContent(const QDomElement& theArticle);

    /// Reads the first child `order_txt_lines`: its attribute `head` and the untrimmed text of each of its child
    /// elements. Without such a child everything stays as it was.
    void update(const QDomElement& theArticle);

    QString head() const { return myHead; }
    QStringList lines() const { return myLines; }

    /// What stands behind the key in the first line that starts with it, ignoring case; the key's "=" may be left
    /// out. The empty text when no line does.
    QString orderTxtValue(const QString& theKey) const;

private:
    QString myHead;
    QStringList myLines;
    mutable QHash<QString, QString> myValueCache; ///< values found, by the key as it was asked for
};

#endif
