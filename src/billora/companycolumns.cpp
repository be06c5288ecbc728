#include "companycolumns.h"

#include "texts.h"

namespace {

// A getter is given the record alone, and the company is none of its own.
struct {
    int number = 0;
    QString name;
} present;

constexpr Field fields[] = {
    {"company.number", ValueType::integer, TEXT("Yritys"), TEXT("yrityksen numero luettelossa"), Field::summary,
     [](const void *) { return Value(present.number); }},
    {"company.name", ValueType::text, TEXT("Yrityksen nimi"), nullptr, Field::summary,
     [](const void *) { return Value(present.name); }},
};

} // namespace

const RecordTable CompanyColumns::table = {"company", fields, sizeof fields / sizeof fields[0],
                                           "company.number,company.name"};

void CompanyColumns::set(int number, const QString &name)
{
    present.number = number;
    present.name = name.isNull() ? QStringLiteral("") : name;
}

int CompanyColumns::number() { return present.number; }
