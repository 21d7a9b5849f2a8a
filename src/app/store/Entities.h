#pragma once

#include "FetchRequest.h"
#include "ManagedObject.h"

#include <memory>

// The four entities of the book's store. Accessors read and write the attributes by name.

// One page of the book: a morning ("AM") or night ("PM") page of a calendar day.
class PoemPrayer : public ManagedObject
{
public:
    static inline const QString entityName = QStringLiteral("PoemPrayer");
    static FetchRequest fetchRequest() { return FetchRequest(entityName); }
    explicit PoemPrayer(ManagedObjectContext *context) : ManagedObject(EntityDescription::named(entityName), context) {}

    std::optional<QString> ampm() const { return string(QStringLiteral("ampm")); }
    void setAmpm(const std::optional<QString> &v) { setOptional(QStringLiteral("ampm"), v); }
    qint16 day() const { return integer16(QStringLiteral("day")); }
    void setDay(std::optional<qint16> v) { setOptional(QStringLiteral("day"), v); }
    std::optional<QString> dt() const { return string(QStringLiteral("dt")); }
    void setDt(const std::optional<QString> &v) { setOptional(QStringLiteral("dt"), v); }
    std::optional<QString> favorite() const { return string(QStringLiteral("favorite")); }
    void setFavorite(const std::optional<QString> &v) { setOptional(QStringLiteral("favorite"), v); }
    qint16 month() const { return integer16(QStringLiteral("month")); }
    void setMonth(std::optional<qint16> v) { setOptional(QStringLiteral("month"), v); }
    qint16 pagenum() const { return integer16(QStringLiteral("pagenum")); }
    void setPagenum(std::optional<qint16> v) { setOptional(QStringLiteral("pagenum"), v); }
    std::optional<QString> poemprayer() const { return string(QStringLiteral("poemprayer")); }
    void setPoemprayer(const std::optional<QString> &v) { setOptional(QStringLiteral("poemprayer"), v); }
};

// One of the reader's own dated notes.
class Notes : public ManagedObject
{
public:
    static inline const QString entityName = QStringLiteral("Notes");
    static FetchRequest fetchRequest() { return FetchRequest(entityName); }
    explicit Notes(ManagedObjectContext *context) : ManagedObject(EntityDescription::named(entityName), context) {}

    std::optional<QString> ampm() const { return string(QStringLiteral("ampm")); }
    void setAmpm(const std::optional<QString> &v) { setOptional(QStringLiteral("ampm"), v); }
    qint16 day() const { return integer16(QStringLiteral("day")); }
    void setDay(std::optional<qint16> v) { setOptional(QStringLiteral("day"), v); }
    std::optional<QDateTime> dt() const { return date(QStringLiteral("dt")); }
    void setDt(const std::optional<QDateTime> &v) { setOptional(QStringLiteral("dt"), v); }
    std::optional<QString> dtstring() const { return string(QStringLiteral("dtstring")); }
    void setDtstring(const std::optional<QString> &v) { setOptional(QStringLiteral("dtstring"), v); }
    qint16 month() const { return integer16(QStringLiteral("month")); }
    void setMonth(std::optional<qint16> v) { setOptional(QStringLiteral("month"), v); }
    std::optional<QString> notes() const { return string(QStringLiteral("notes")); }
    void setNotes(const std::optional<QString> &v) { setOptional(QStringLiteral("notes"), v); }
    std::optional<QString> subject() const { return string(QStringLiteral("subject")); }
    void setSubject(const std::optional<QString> &v) { setOptional(QStringLiteral("subject"), v); }
    qint16 year() const { return integer16(QStringLiteral("year")); }
    void setYear(std::optional<qint16> v) { setOptional(QStringLiteral("year"), v); }
};

// A named special day with its own morning or night poem.
class SpecialDay : public ManagedObject
{
public:
    static inline const QString entityName = QStringLiteral("SpecialDay");
    static FetchRequest fetchRequest() { return FetchRequest(entityName); }
    explicit SpecialDay(ManagedObjectContext *context) : ManagedObject(EntityDescription::named(entityName), context) {}

    std::optional<QString> ampm() const { return string(QStringLiteral("ampm")); }
    void setAmpm(const std::optional<QString> &v) { setOptional(QStringLiteral("ampm"), v); }
    std::optional<QString> dayname() const { return string(QStringLiteral("dayname")); }
    void setDayname(const std::optional<QString> &v) { setOptional(QStringLiteral("dayname"), v); }
    std::optional<QString> poemprayer() const { return string(QStringLiteral("poemprayer")); }
    void setPoemprayer(const std::optional<QString> &v) { setOptional(QStringLiteral("poemprayer"), v); }
};

// One "about" article.
class About : public ManagedObject
{
public:
    static inline const QString entityName = QStringLiteral("About");
    static FetchRequest fetchRequest() { return FetchRequest(entityName); }
    explicit About(ManagedObjectContext *context) : ManagedObject(EntityDescription::named(entityName), context) {}

    std::optional<QString> aboutText() const { return string(QStringLiteral("aboutText")); }
    void setAboutText(const std::optional<QString> &v) { setOptional(QStringLiteral("aboutText"), v); }
    std::optional<QString> name() const { return string(QStringLiteral("name")); }
    void setName(const std::optional<QString> &v) { setOptional(QStringLiteral("name"), v); }
};

// A new object of the named entity's class.
std::unique_ptr<ManagedObject> makeManagedObject(const QString &entityName, ManagedObjectContext *context);
