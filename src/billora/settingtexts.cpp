#include "settingtexts.h"

#include "field.h"
#include "integer.h"
#include "settingskeys.h"
#include "suggestions.h"
#include "task.h"
#include "texts.h"
#include "valuewriter.h"

namespace {

struct Row {
    const char *key, *text;
    ValueType type = ValueType::text;
};

constexpr Row rows[] = {
    {"sellerName", TEXT("yrityksen nimi")},
    {"sellerStreetName", TEXT("katuosoite")},
    {"sellerPostCode", TEXT("postinumero")},
    {"sellerTownName", TEXT("postitoimipaikka")},
    {"sellerCountry", TEXT("maa")},
    {"sellerBusinessId", TEXT("Y-tunnus")},
    {"einvoice/format", TEXT("verkkolaskun muoto: finvoice, finvoice3 tai peppol")},
    {"einvoice/units", TEXT("omat yksiköt: teksti=koodi, pilkuin erotettuina")},
    {"einvoice/zeroVatCategory", TEXT("veroluokka riveille, joiden vero on 0 %: AE K G E O Z")},
    {"einvoice/zeroVatReason", TEXT("verottomuuden syy")},
    {"einvoice/zeroVatReasonCode", TEXT("verottomuuden syyn koodi (VATEX)")},
    {"finvoice/defaultReceiverId", TEXT("vastaanottajan oletusosoite Finvoicessa")},
    {"finvoice/edi", TEXT("yrityksen OVT-tunnus")},
    {"finvoice/epiInstructionId", TEXT("maksuehdotuksen tunniste")},
    {"finvoice/intermediatorId", TEXT("yrityksen verkkolaskuoperaattori")},
    {"finvoice/senderId", TEXT("yrityksen verkkolaskuosoite")},
    {"finvoice/senderScheme", TEXT("yrityksen verkkolaskuosoitteen laji (EAS)")},
    {"invoiceForm/barcodeVisible", TEXT("tulostetaanko viivakoodi"), ValueType::flag},
    {"invoiceForm/invoiceItemOptions", TEXT("laskurivien sarakkeet, bittejä"), ValueType::integer},
    {"invoiceForm/language", TEXT("asiakirjojen kieli")},
    {"invoiceForm/logoHeight", TEXT("logon korkeus, millimetriä")},
    {"invoiceForm/noticeText1", TEXT("ilmoitusteksti laskun alussa")},
    {"invoiceForm/noticeText2", TEXT("ilmoitusteksti laskun lopussa")},
    {"invoiceForm/reminderText", TEXT("maksumuistutuksen teksti")},
    {"invoiceForm/roundingMode", TEXT("veron pyöristys: 1 verokannoittain, 2 riveittäin"), ValueType::integer},
    {"printScripts/invoice", TEXT("valitun laskupohjan tunniste"), ValueType::integer},
    {"seller/accountName", TEXT("tilin haltijan nimi")},
    {"seller/contactName", TEXT("myyjän yhteyshenkilö")},
    {"seller/legalInfo", TEXT("myyjän oikeudelliset tiedot, kuten Ennakkoperintärekisterissä")},
    {"seller/taxRegistration", TEXT("veroviranomaisen tunnus, jos ALV-numeroa ei ole")},
    {"seller/tradeName", TEXT("aputoiminimi")},
    {"seller/emailAddress", TEXT("sähköposti")},
    {"seller/phoneNumber", TEXT("puhelin")},
    {"seller/vatNumber", TEXT("ALV-numero")},
    {"seller/webAddress", TEXT("verkkosivu")},
    {"settings/interestOnArrears", TEXT("viivästyskorko"), ValueType::percent},
    {"settings/paymentTerms", TEXT("maksuehto uusille laskuille")},
    {"settings/periodForComplaints", TEXT("huomautusaika")},
    {"settings/productForInterestOnArrears", TEXT("viivästyskoron tuotenumero")},
    {"settings/referenceNumberSuffix", TEXT("viitenumeron loppu laskun numeron jälkeen")},
    {"settings/referenceNumberTemplate", TEXT("viitenumeron malli")},
    {"logo", TEXT("kuvatiedosto; näytetään kokona pikseleinä"), ValueType::file},
};

const Row *find(const QString &key)
{
    for (const Row &row : rows) {
        if (key == QLatin1String(row.key))
            return &row;
    }
    return nullptr;
}

} // namespace

QString SettingTexts::description(const QString &key)
{
    const Row *row = find(key);
    if (row)
        return ::text(row->text);
    return key.startsWith(QLatin1String("invoiceForm/footer/")) ? ::text(TEXT("alatunnisteen teksti")) : QString();
}

ValueType SettingTexts::type(const QString &key)
{
    const Row *row = find(key);
    return row ? row->type : ValueType::text;
}

QStringList SettingTexts::keys() { return SettingsKeys::allKeys() + QStringList(QStringLiteral("logo")); }

bool SettingTexts::resolve(Task &task, const QString &word, QString &key)
{
    if (SettingsKeys::isKnown(word) || word == QLatin1String("logo")) {
        key = word;
        return true;
    }
    QStringList fitting, names;
    const QStringList known = keys();
    for (const QString &candidate : known) {
        const QString name = candidate.section(QLatin1Char('/'), -1);
        names << candidate << name;
        if (name == word)
            fitting.append(candidate);
    }
    if (fitting.size() == 1) {
        key = fitting.first();
        return true;
    }
    Problem problem;
    problem.code = fitting.isEmpty() ? Problem::notFound : Problem::ambiguous;
    problem.message =
        ::text(fitting.isEmpty() ? TEXT("asetusta ei ole: %1") : TEXT("asetuksia on useita: %1")).arg(word);
    problem.option = QStringLiteral("key");
    problem.value = word;
    problem.see = QStringLiteral("billora settings list --all");
    for (const QString &name : fitting.isEmpty() ? Suggestions::nearest(word, names) : fitting)
        problem.suggestions.append({name, QString()});
    return task.fail(problem);
}

QString SettingTexts::shown(const QString &key, const QString &stored)
{
    bool isNumber = false;
    const int number = Integer::parse(stored, isNumber);
    return type(key) == ValueType::percent && isNumber ? ValueWriter::plainDecimal(number, 2, 0) : stored;
}

bool SettingTexts::stored(Task &task, const QString &key, const QString &typed, QString &value)
{
    value = typed;
    if (typed.isEmpty())
        return true;
    switch (type(key)) {
    case ValueType::percent: {
        int number = 0;
        if (!task.reader.number(key, ValueType::percent, typed, number))
            return false;
        value = QString::number(number);
        return true;
    }
    case ValueType::flag: {
        bool isTrue = false;
        if (!task.reader.flag(key, typed, isTrue))
            return false;
        value = isTrue ? QStringLiteral("true") : QStringLiteral("false");
        return true;
    }
    default:
        return true;
    }
}
