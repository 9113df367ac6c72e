#pragma once

#include <archive/ArchiveContext.h>
#include <clconfigui_export.h>
#include <datastorage/DataArrayIdentifier.h>

#include <QJsonObject>
#include <QString>

/// The bare pairing of an X data array with a Y data array: two identities (name and category) without scales.
///
/// It is what the axes-combination manager compares, and toString() is the text key by which it tells duplicates. A
/// plain value: copies share nothing but Qt's implicitly shared texts.
class CLCONFIGUI_EXPORT DataStreamCombination
{
public:
    /// All four texts empty.
    DataStreamCombination();

    /// Mind the order: for each axis the category stands before the name.
    DataStreamCombination(const QString& xCategory, const QString& xName, const QString& yCategory,
                          const QString& yName);
    DataStreamCombination(const DataStreamCombination& other);
    DataStreamCombination& operator=(const DataStreamCombination& other);
    virtual ~DataStreamCombination();

    /// Fills the four texts from their archive keys; a missing key or a value that is not a string gives an empty text.
    /// Always returns true; \p version and \p context are not used.
    virtual bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context);

    /// Stores the four texts under their archive keys and leaves other keys of \p object alone. Always returns true.
    virtual bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const;

    /// \{
    /// The name of the data array on the axis, or the category of that name.
    const QString& getXName() const { return m_x.getName(); }
    const QString& getXCategory() const { return m_x.getCategory(); }
    const QString& getYName() const { return m_y.getName(); }
    const QString& getYCategory() const { return m_y.getCategory(); }

    void setXName(const QString& name) { m_x.setName(name); }
    void setXCategory(const QString& category) { m_x.setCategory(category); }
    void setYName(const QString& name) { m_y.setName(name); }
    void setYCategory(const QString& category) { m_y.setCategory(category); }
    /// \}

    /// X category, X name, Y category and Y name joined by single blanks, nothing quoted or trimmed. Names that contain
    /// blanks can therefore give the key of another split of the same words.
    // NOLINTNEXTLINE(readability-const-return-type): callers rely on the declared type
    const QString toString() const;

private:
    cl::datastorage::DataArrayIdentifier m_x;
    cl::datastorage::DataArrayIdentifier m_y;
};
