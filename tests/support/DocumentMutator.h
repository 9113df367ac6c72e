#pragma once

#include <support/Random.h>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

/// Changes good documents at random places, so that they are wrong in every way that JSON allows, or still good.
class DocumentMutator
{
public:
    /// \p names are texts that mean something in the documents: here and there one of them replaces another text.
    DocumentMutator(unsigned seed, const QStringList& names);

    /// \p value with one to three changes somewhere in it, itself included.
    QJsonValue mutated(const QJsonValue& value);

    /// \p document with such changes as text, in which a key may stand twice. It stays an object.
    QByteArray mutatedText(const QJsonObject& document);

private:
    QJsonValue changed(const QJsonValue& value);
    QJsonObject changedMember(QJsonObject object);
    QJsonArray changedElement(QJsonArray array);
    QString changedText(QString text);
    QJsonValue otherValue();
    QByteArray withRepeatedKey(QByteArray bytes, const QStringList& keys);

    Random m_random;
    QStringList m_texts;
};
