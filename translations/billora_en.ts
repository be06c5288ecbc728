<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fi">
<context>
    <name>billora</name>
    <message>
        <source>kenttää ei ole: %1</source>
        <translation>no such field: %1</translation>
    </message>
    <message>
        <source>Poistettu %1: %2</source>
        <translation>Removed %1: %2</translation>
    </message>
    <message>
        <source>tuntematon komento: %1</source>
        <translation>unknown command: %1</translation>
    </message>
    <message>
        <source>komento ei käy eräajossa: %1</source>
        <translation>not a command for a batch: %1</translation>
    </message>
    <message>
        <source>komento käy eräajossa vain valinnan --each kanssa: %1</source>
        <translation>a command for a batch with --each only: %1</translation>
    </message>
    <message>
        <source>avaimella on tehty toinen pyyntö: %1</source>
        <translation>the key was used for another request: %1</translation>
    </message>
    <message>
        <source>pankkitili</source>
        <translation>bank account</translation>
    </message>
    <message>
        <source>Pankkitili lisätty: %1</source>
        <translation>Bank account added: %1</translation>
    </message>
    <message>
        <source>Pankkitili muutettu: %1</source>
        <translation>Bank account changed: %1</translation>
    </message>
    <message>
        <source>Poistetaanko pankkitili %1?</source>
        <translation>Remove bank account %1?</translation>
    </message>
    <message>
        <source>IBAN ei ole oikein</source>
        <translation>the IBAN is not right</translation>
    </message>
    <message>
        <source>pankkitilit</source>
        <translation>the bank accounts</translation>
    </message>
    <message>
        <source>yrityksen pankkitilit</source>
        <translation>the company's bank accounts</translation>
    </message>
    <message>
        <source>pankkitilin tiedot</source>
        <translation>a bank account</translation>
    </message>
    <message>
        <source>uusi pankkitili</source>
        <translation>a new bank account</translation>
    </message>
    <message>
        <source>muuttaa pankkitilin tietoja; ilman kenttiä muokkaimessa</source>
        <translation>changes a bank account; without fields in the editor</translation>
    </message>
    <message>
        <source>poistaa pankkitilejä; suoritukset jäävät</source>
        <translation>removes bank accounts; payments stay</translation>
    </message>
    <message>
        <source>uusi tiedosto, .zip tai .tar.zst</source>
        <translation>new file, .zip or .tar.zst</translation>
    </message>
    <message>
        <source>laskujen, suoritusten ja lähetysten ajanjakso, tavallisesti kuukausi</source>
        <translation>period of invoices, payments and sent documents, usually a month</translation>
    </message>
    <message>
        <source>ajanjaksolla pitää olla alku ja loppu</source>
        <translation>the period needs a beginning and an end</translation>
    </message>
    <message>
        <source>tiedoston nimen lopussa pitää olla .zip tai .tar.zst</source>
        <translation>the name of the file must end in .zip or .tar.zst</translation>
    </message>
    <message>
        <source>Arkisto %1: laskuja %2, suorituksia %3, lähetyksiä %4</source>
        <translation>Archive %1: invoices %2, payments %3, sent documents %4</translation>
    </message>
    <message>
        <source>kuukausi kirjanpitäjälle yhtenä tiedostona</source>
        <translation>a month for the bookkeeper in one file</translation>
    </message>
    <message>
        <source>Laskut PDF-tiedostoina ja verkkolaskuina, luettelot, suoritukset, lähetettyjen päiväkirja, tarkistussummat ja sivu index.html. Sama kuukausi samoista tiedoista on tavulleen sama.</source>
        <translation>The invoices as PDF files and e-invoices, lists, payments, the journal of sent documents, checksums and the page index.html. The same month of the same data has the same bytes.</translation>
    </message>
    <message>
        <source>yrityksen numero luettelossa</source>
        <translation>number of the company in the list</translation>
    </message>
    <message>
        <source>yrityksen numero; valittu, jos sitä ei anneta</source>
        <translation>number of the company; the selected one unless given</translation>
    </message>
    <message>
        <source>SQLite-tiedosto, jossa yritys on</source>
        <translation>SQLite file that the company is in</translation>
    </message>
    <message>
        <source>tietokanta palvelimella: postgresql://KÄYTTÄJÄ@PALVELIN/TIETOKANTA</source>
        <translation>database on a server: postgresql://USER@HOST/DATABASE</translation>
    </message>
    <message>
        <source>tiedosto, jossa tietokannan salasana on</source>
        <translation>file with the database's password</translation>
    </message>
    <message>
        <source>numero luettelossa; seuraava vapaa, jos sitä ei anneta</source>
        <translation>number in the list; the next free one unless given</translation>
    </message>
    <message>
        <source>anna joko FILE tai --postgresql URL</source>
        <translation>give either FILE or --postgresql URL</translation>
    </message>
    <message>
        <source>luvun pitää olla vähintään 1</source>
        <translation>the number must be at least 1</translation>
    </message>
    <message>
        <source>yritys on jo luettelossa numerolla %1</source>
        <translation>the company is in the list already, number %1</translation>
    </message>
    <message>
        <source>Yritys %1 lisätty luetteloon</source>
        <translation>Company %1 added to the list</translation>
    </message>
    <message>
        <source>Yritys %1 valittu</source>
        <translation>Company %1 selected</translation>
    </message>
    <message>
        <source>yritysten numerot luettelossa</source>
        <translation>the companies' numbers on the list</translation>
    </message>
    <message>
        <source>kaikki luettelon yritykset</source>
        <translation>all companies on the list</translation>
    </message>
    <message>
        <source>anna joko yritysten numerot tai --all</source>
        <translation>give either companies' numbers or --all</translation>
    </message>
    <message>
        <source>yritykset, joilla on tietokanta</source>
        <translation>the companies that have a database</translation>
    </message>
    <message>
        <source>missä yrityksen tietokanta on</source>
        <translation>where a company's database is</translation>
    </message>
    <message>
        <source>lisää luetteloon yrityksen, joka on jo olemassa</source>
        <translation>puts a company that exists already on the list</translation>
    </message>
    <message>
        <source>valitsee yrityksen, jota komennot koskevat</source>
        <translation>selects the company that commands are about</translation>
    </message>
    <message>
        <source>päivittää tietokantojen rakenteen tämän ohjelman versioon</source>
        <translation>brings databases to this program's version of the schema</translation>
    </message>
    <message>
        <source>Jatkaa virheen jälkeen seuraavasta yrityksestä; jos jokin ei onnistunut, paluuarvo on 6.</source>
        <translation>Goes on with the next company after an error; when one failed, the exit code is 6.</translation>
    </message>
    <message>
        <source>poistaa yrityksen luettelosta; tietokanta jää</source>
        <translation>takes a company off the list; its database stays</translation>
    </message>
    <message>
        <source>asiakas</source>
        <translation>customer</translation>
    </message>
    <message>
        <source>Asiakas %1 lisätty: %2</source>
        <translation>Customer %1 added: %2</translation>
    </message>
    <message>
        <source>Asiakas %1 muutettu: %2</source>
        <translation>Customer %1 changed: %2</translation>
    </message>
    <message>
        <source>Poistetaanko asiakas %1?</source>
        <translation>Remove customer %1?</translation>
    </message>
    <message>
        <source>Y-tunnus tai ALV-numero ei ole oikein</source>
        <translation>the business ID or VAT number is not right</translation>
    </message>
    <message>
        <source>asiakasnumero on jo käytössä: %1</source>
        <translation>the customer number is taken: %1</translation>
    </message>
    <message>
        <source>Avoimia laskuja on %1.</source>
        <translation>%1 invoices are open.</translation>
    </message>
    <message>
        <source>asiakkaat</source>
        <translation>the customers</translation>
    </message>
    <message>
        <source>luettelo asiakkaista</source>
        <translation>lists customers</translation>
    </message>
    <message>
        <source>asiakkaan tiedot ja avoimet</source>
        <translation>a customer and what is open</translation>
    </message>
    <message>
        <source>uusi asiakas</source>
        <translation>a new customer</translation>
    </message>
    <message>
        <source>muuttaa asiakkaan tietoja; ilman kenttiä muokkaimessa</source>
        <translation>changes a customer; without fields in the editor</translation>
    </message>
    <message>
        <source>poistaa asiakkaita; laskut jäävät</source>
        <translation>removes customers; invoices stay</translation>
    </message>
    <message>
        <source>asiakkaat CSV-tiedostosta, kaikki tai ei mitään</source>
        <translation>customers from a CSV file, all or none</translation>
    </message>
    <message>
        <source>lasku</source>
        <translation>invoice</translation>
    </message>
    <message>
        <source>Lasku %1 lisätty: %2, %3, eräpäivä %4, viite %5</source>
        <translation>Invoice %1 added: %2, %3, due %4, reference %5</translation>
    </message>
    <message>
        <source>Lasku %1 muutettu: %2, %3, eräpäivä %4, viite %5</source>
        <translation>Invoice %1 changed: %2, %3, due %4, reference %5</translation>
    </message>
    <message>
        <source>Hyvityslasku %1 lisätty: %2, %3, eräpäivä %4, viite %5</source>
        <translation>Credit note %1 added: %2, %3, due %4, reference %5</translation>
    </message>
    <message>
        <source>Seuraavaksi: </source>
        <translation>Next: </translation>
    </message>
    <message>
        <source>rivi: "TUOTE [MÄÄRÄ] [KENTTÄ=ARVO]…"; - on rivi ilman tuotetta</source>
        <translation>row: "PRODUCT [QUANTITY] [FIELD=VALUE]…"; - is a row without a product</translation>
    </message>
    <message>
        <source>kentät ja rivit JSON-tiedostosta; - on vakiosyöte</source>
        <translation>fields and rows from a JSON file; - is standard input</translation>
    </message>
    <message>
        <source>kirjoittaa myös PDF-tiedoston</source>
        <translation>writes the PDF file too</translation>
    </message>
    <message>
        <source>tiedostoa %1 ei voi lukea: %2</source>
        <translation>file %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>kenttä on kahdesti: %1</source>
        <translation>the field is there twice: %1</translation>
    </message>
    <message>
        <source>Asiakas</source>
        <translation>Customer</translation>
    </message>
    <message>
        <source>mitään ei tehty</source>
        <translation>nothing was done</translation>
    </message>
    <message>
        <source>Rivi (TUOTE MÄÄRÄ, tyhjä lopettaa)</source>
        <translation>Row (PRODUCT QUANTITY, empty to end)</translation>
    </message>
    <message>
        <source>Lasku %1: %2, %3. Tallennetaanko?</source>
        <translation>Invoice %1: %2, %3. Save it?</translation>
    </message>
    <message>
        <source>joku muu on muuttanut tietoja sillä välin</source>
        <translation>somebody else has changed it meanwhile</translation>
    </message>
    <message>
        <source>mitä muutetaan? Anna kenttiä valintoina</source>
        <translation>what is to change? Give fields as options</translation>
    </message>
    <message>
        <source>Mitään ei muutettu: lasku %1</source>
        <translation>Nothing changed: invoice %1</translation>
    </message>
    <message>
        <source>yhtään laskua ei löytynyt</source>
        <translation>no invoice was found</translation>
    </message>
    <message>
        <source>Poistetaanko lasku riveineen ja suorituksineen?</source>
        <translation>Remove the invoice with its rows and payments?</translation>
    </message>
    <message>
        <source>Poistetaanko %1 laskua riveineen ja suorituksineen?</source>
        <translation>Remove %1 invoices with their rows and payments?</translation>
    </message>
    <message>
        <source>asiakas, jos toinen</source>
        <translation>customer, when another one</translation>
    </message>
    <message>
        <source>hyvitettävä lasku</source>
        <translation>the invoice to credit</translation>
    </message>
    <message>
        <source>vain nämä rivit, pilkuin erotettuina: 1,3</source>
        <translation>only these rows, separated by commas: 1,3</translation>
    </message>
    <message>
        <source>laskun rivejä 1–%1, kukin kerran</source>
        <translation>rows 1–%1 of the invoice, each once</translation>
    </message>
    <message>
        <source>lasku %1 on jo hyvityslasku</source>
        <translation>invoice %1 is a credit note already</translation>
    </message>
    <message>
        <source>luettelo laskuista</source>
        <translation>lists invoices</translation>
    </message>
    <message>
        <source>koko lasku: rivit, verot, suoritukset</source>
        <translation>a whole invoice: rows, VAT, payments</translation>
    </message>
    <message>
        <source>uusi lasku; seuraava numero ja viite</source>
        <translation>a new invoice; the next number and reference</translation>
    </message>
    <message>
        <source>muuttaa laskua; ilman kenttiä muokkaimessa riveineen</source>
        <translation>changes an invoice; without fields in the editor, with its rows</translation>
    </message>
    <message>
        <source>poistaa laskuja riveineen ja suorituksineen</source>
        <translation>removes invoices with their rows and payments</translation>
    </message>
    <message>
        <source>uusi lasku samoin rivein</source>
        <translation>a new invoice with the same rows</translation>
    </message>
    <message>
        <source>hyvityslasku, joka viittaa alkuperäiseen</source>
        <translation>a credit note that refers to its original</translation>
    </message>
    <message>
        <source>maksumuistutus</source>
        <translation>payment reminder</translation>
    </message>
    <message>
        <source>kuitti</source>
        <translation>receipt</translation>
    </message>
    <message>
        <source>lähetyslista</source>
        <translation>delivery note</translation>
    </message>
    <message>
        <source>Finvoice 3.0, EN 16931</source>
        <translation>Finvoice 3.0, EN 16931</translation>
    </message>
    <message>
        <source>Peppol BIS Billing 3</source>
        <translation>Peppol BIS Billing 3</translation>
    </message>
    <message>
        <source>muoto, johon lasku aiotaan viedä; muuten asiakkaan tai yrityksen oma</source>
        <translation>format that it is to be exported to; else the customer's or the company's own</translation>
    </message>
    <message>
        <source>virhe</source>
        <translation>error</translation>
    </message>
    <message>
        <source>varoitus</source>
        <translation>warning</translation>
    </message>
    <message>
        <source>huomautus</source>
        <translation>note</translation>
    </message>
    <message>
        <source>Lasku %1, %2 %3: %4</source>
        <translation>Invoice %1, %2 %3: %4</translation>
    </message>
    <message>
        <source>Laskut ovat valmiita lähetettäviksi.</source>
        <translation>The invoices are ready to be sent.</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>CSV, kaikki yhteen tiedostoon</source>
        <translation>CSV, all in one file</translation>
    </message>
    <message>
        <source>Finvoice 1.3</source>
        <translation>Finvoice 1.3</translation>
    </message>
    <message>
        <source>asiakkaan tai yrityksen oma verkkolaskumuoto</source>
        <translation>e-invoice format of the customer or the company</translation>
    </message>
    <message>
        <source>kaikki</source>
        <translation>all</translation>
    </message>
    <message>
        <source>asiakirjan laji, jos muu kuin laskun oma</source>
        <translation>kind of document, when not the invoice's own</translation>
    </message>
    <message>
        <source>tiedoston muoto; muuten nimen mukaan</source>
        <translation>format of the file; else by its name</translation>
    </message>
    <message>
        <source>laskupohja, jos muu kuin valittu</source>
        <translation>layout, when not the selected one</translation>
    </message>
    <message>
        <source>Finvoice välitysotsikoineen</source>
        <translation>Finvoice with its transport envelope</translation>
    </message>
    <message>
        <source>tiedoston nimi; $i on laskun ja $n asiakkaan nimi tai numero, - on vakiotuloste</source>
        <translation>name of the file; $i is the invoice's number, $n the customer's name, - standard output</translation>
    </message>
    <message>
        <source>CSV-tiedoston erotin</source>
        <translation>delimiter of the CSV file</translation>
    </message>
    <message>
        <source>ei merkitä lähetetyksi päiväkirjaan</source>
        <translation>leaves the journal of sent documents as it is</translation>
    </message>
    <message>
        <source>vakiotulosteeseen mahtuu yksi asiakirja, ei %1</source>
        <translation>standard output takes one document, not %1</translation>
    </message>
    <message>
        <source>erotin on yksi merkki</source>
        <translation>the delimiter is one character</translation>
    </message>
    <message>
        <source>se ei ole tavallinen tiedosto</source>
        <translation>it is no regular file</translation>
    </message>
    <message>
        <source>%1 (rivi %2)</source>
        <translation>%1 (line %2)</translation>
    </message>
    <message>
        <source>Laskua %1 ei viety: %2</source>
        <translation>Invoice %1 was not exported: %2</translation>
    </message>
    <message>
        <source>tarkistaa, voiko laskut lähettää verkkolaskuina</source>
        <translation>checks whether invoices can be sent as e-invoices</translation>
    </message>
    <message>
        <source>laskut tiedostoiksi: PDF, Finvoice tai CSV</source>
        <translation>invoices as files: PDF, Finvoice or CSV</translation>
    </message>
    <message>
        <source>laskujen numeroita ja välejä</source>
        <translation>numbers and ranges of invoices</translation>
    </message>
    <message>
        <source>lähetyksen päivä tai ajanjakso</source>
        <translation>day or period of sending</translation>
    </message>
    <message>
        <source>tästä päivästä alkaen</source>
        <translation>from this day on</translation>
    </message>
    <message>
        <source>tähän päivään asti</source>
        <translation>up to this day</translation>
    </message>
    <message>
        <source>rivin numero</source>
        <translation>number of the line</translation>
    </message>
    <message>
        <source>päiväkirjassa ei ole riviä %1</source>
        <translation>the journal has no line %1</translation>
    </message>
    <message>
        <source>laskua %1 on muutettu lähettämisen jälkeen</source>
        <translation>invoice %1 was changed after it was sent</translation>
    </message>
    <message>
        <source>laskua %1 ei enää ole</source>
        <translation>invoice %1 is gone</translation>
    </message>
    <message>
        <source>Päiväkirja on eheä, rivejä %1.</source>
        <translation>The journal is sound, %1 lines.</translation>
    </message>
    <message>
        <source>lähetetyt asiakirjat</source>
        <translation>the documents that were sent</translation>
    </message>
    <message>
        <source>päiväkirjan rivi tiivisteineen</source>
        <translation>a line of the journal with its hashes</translation>
    </message>
    <message>
        <source>tarkistaa, ettei päiväkirjaa tai lähetettyjä laskuja ole muutettu</source>
        <translation>checks that neither the journal nor a sent invoice was changed</translation>
    </message>
    <message>
        <source>Rivien ketju ja tieto viimeisestä rivistä paljastavat muutetun, poistetun, lisätyn ja siirretyn rivin, mutta eivät sitä, joka kirjoittaa tai poistaa ne kaikki. Kopio muualla paljastaa senkin.</source>
        <translation>The chain of lines and what is kept of the last one show a line that was changed, removed, added or moved, but not who writes or removes them all. A copy elsewhere shows that too.</translation>
    </message>
    <message>
        <source>laskupohja</source>
        <translation>layout</translation>
    </message>
    <message>
        <source>laskun piirtävä pohja</source>
        <translation>a layout that draws invoices</translation>
    </message>
    <message>
        <source>Finvoice-kirjoitin</source>
        <translation>a Finvoice writer</translation>
    </message>
    <message>
        <source>nimi</source>
        <translation>name</translation>
    </message>
    <message>
        <source>tiedosto, jossa pohja on; - on vakiosyöte</source>
        <translation>file with the layout; - is standard input</translation>
    </message>
    <message>
        <source>laji; invoice, jos sitä ei anneta</source>
        <translation>kind; invoice unless given</translation>
    </message>
    <message>
        <source>tiedosto, jossa uusi pohja on; ilman sitä muokkaimessa</source>
        <translation>file with the new layout; without it in the editor</translation>
    </message>
    <message>
        <source>uusi nimi</source>
        <translation>new name</translation>
    </message>
    <message>
        <source>ohjelman oma laskupohja</source>
        <translation>the program's own layout</translation>
    </message>
    <message>
        <source>nimi puuttuu</source>
        <translation>the name is missing</translation>
    </message>
    <message>
        <source>Laskupohja lisätty: %1</source>
        <translation>Layout added: %1</translation>
    </message>
    <message>
        <source>Laskupohja muutettu: %1</source>
        <translation>Layout changed: %1</translation>
    </message>
    <message>
        <source>FILE puuttuu</source>
        <translation>FILE is missing</translation>
    </message>
    <message>
        <source>Mitään ei muutettu</source>
        <translation>Nothing changed</translation>
    </message>
    <message>
        <source>Poistetaanko laskupohja %1?</source>
        <translation>Remove layout %1?</translation>
    </message>
    <message>
        <source>anna laskupohja tai valinta --built-in</source>
        <translation>give a layout or the option --built-in</translation>
    </message>
    <message>
        <source>%1 ei ole laskupohja</source>
        <translation>%1 is no invoice layout</translation>
    </message>
    <message>
        <source>Laskupohja valittu: %1</source>
        <translation>Layout selected: %1</translation>
    </message>
    <message>
        <source>laskupohjat ja Finvoice-kirjoittimet</source>
        <translation>layouts and Finvoice writers</translation>
    </message>
    <message>
        <source>laskupohjan lähdeteksti</source>
        <translation>source of a layout</translation>
    </message>
    <message>
        <source>uusi laskupohja tiedostosta</source>
        <translation>a new layout from a file</translation>
    </message>
    <message>
        <source>muuttaa laskupohjaa</source>
        <translation>changes a layout</translation>
    </message>
    <message>
        <source>poistaa laskupohjan</source>
        <translation>removes a layout</translation>
    </message>
    <message>
        <source>valitsee laskupohjan uusille tulosteille</source>
        <translation>selects the layout for new documents</translation>
    </message>
    <message>
        <source>asiakkaan suoritukset</source>
        <translation>payments of a customer</translation>
    </message>
    <message>
        <source>pankkitilin suoritukset</source>
        <translation>payments to a bank account</translation>
    </message>
    <message>
        <source>suorituksen päivä tai ajanjakso</source>
        <translation>date or period of the payment</translation>
    </message>
    <message>
        <source>kenttä, jonka mukaan järjestetään; - edessä laskevasti</source>
        <translation>field to sort by; - in front for descending</translation>
    </message>
    <message>
        <source>enintään näin monta, järjestämisen jälkeen</source>
        <translation>so many at most, after sorting</translation>
    </message>
    <message>
        <source>suoritus</source>
        <translation>payment</translation>
    </message>
    <message>
        <source>suorituksen summa; koko avoin summa, jos sitä ei anneta</source>
        <translation>amount of the payment; the whole balance unless given</translation>
    </message>
    <message>
        <source>pankkitili, jolle suoritus tuli</source>
        <translation>bank account that it was paid to</translation>
    </message>
    <message>
        <source>suorituksen summa on nolla</source>
        <translation>the amount of the payment is zero</translation>
    </message>
    <message>
        <source>Lasku %1: suoritus %2 tallennettu, avoinna %3</source>
        <translation>Invoice %1: payment %2 saved, balance %3</translation>
    </message>
    <message>
        <source>Lasku %1: suoritus %2 muutettu, avoinna %3</source>
        <translation>Invoice %1: payment %2 changed, balance %3</translation>
    </message>
    <message>
        <source>suoritukset</source>
        <translation>the payments</translation>
    </message>
    <message>
        <source>%1 (lasku %2, %3)</source>
        <translation>%1 (invoice %2, %3)</translation>
    </message>
    <message>
        <source>Poistetaanko suoritus %1?</source>
        <translation>Remove payment %1?</translation>
    </message>
    <message>
        <source>pankin tiedostoja: tiliote, viitemaksut, CSV tai camt</source>
        <translation>files of the bank: statement, reference payments, CSV or camt</translation>
    </message>
    <message>
        <source>Tallennettu %1 (%2), kohdistamatta %3.</source>
        <translation>Saved %1 (%2), unmatched %3.</translation>
    </message>
    <message>
        <source>luettelo suorituksista</source>
        <translation>lists payments</translation>
    </message>
    <message>
        <source>suorituksen tiedot</source>
        <translation>a payment</translation>
    </message>
    <message>
        <source>suoritus laskulle</source>
        <translation>a payment of an invoice</translation>
    </message>
    <message>
        <source>muuttaa suoritusta</source>
        <translation>changes a payment</translation>
    </message>
    <message>
        <source>poistaa suorituksia; laskut avautuvat</source>
        <translation>removes payments; their invoices are open again</translation>
    </message>
    <message>
        <source>suoritukset pankin tiedostoista, kukin kerran</source>
        <translation>payments from files of the bank, each once</translation>
    </message>
    <message>
        <source>tuoteryhmä</source>
        <translation>product group</translation>
    </message>
    <message>
        <source>tuote</source>
        <translation>product</translation>
    </message>
    <message>
        <source>Tuote %1 lisätty: %2</source>
        <translation>Product %1 added: %2</translation>
    </message>
    <message>
        <source>Tuote %1 muutettu: %2</source>
        <translation>Product %1 changed: %2</translation>
    </message>
    <message>
        <source>Poistetaanko tuote %1?</source>
        <translation>Remove product %1?</translation>
    </message>
    <message>
        <source>valinta --price tai --price-with-vat puuttuu</source>
        <translation>option --price or --price-with-vat is missing</translation>
    </message>
    <message>
        <source>tuotenumero on jo käytössä: %1</source>
        <translation>the product number is taken: %1</translation>
    </message>
    <message>
        <source>tuotteet</source>
        <translation>the products</translation>
    </message>
    <message>
        <source>luettelo tuotteista</source>
        <translation>lists products</translation>
    </message>
    <message>
        <source>tuotteen tiedot</source>
        <translation>a product</translation>
    </message>
    <message>
        <source>uusi tuote</source>
        <translation>a new product</translation>
    </message>
    <message>
        <source>muuttaa tuotteen tietoja; ilman kenttiä muokkaimessa</source>
        <translation>changes a product; without fields in the editor</translation>
    </message>
    <message>
        <source>poistaa tuotteita; laskujen rivit jäävät</source>
        <translation>removes products; rows of invoices stay</translation>
    </message>
    <message>
        <source>tuotteet CSV-tiedostosta, kaikki tai ei mitään</source>
        <translation>products from a CSV file, all or none</translation>
    </message>
    <message>
        <source>man-sivu</source>
        <translation>manual page</translation>
    </message>
    <message>
        <source>komento tai aihe</source>
        <translation>command or topic</translation>
    </message>
    <message>
        <source>ohjetta ei ole: %1</source>
        <translation>no help on: %1</translation>
    </message>
    <message>
        <source>komento</source>
        <translation>command</translation>
    </message>
    <message>
        <source>tietueen JSON-skeema</source>
        <translation>JSON Schema of a record</translation>
    </message>
    <message>
        <source>tietuetta ei ole: %1</source>
        <translation>no such record: %1</translation>
    </message>
    <message>
        <source>komentotulkki</source>
        <translation>shell</translation>
    </message>
    <message>
        <source>vain komennot, jotka eivät muuta mitään</source>
        <translation>only commands that change nothing</translation>
    </message>
    <message>
        <source>myös poistavat komennot</source>
        <translation>commands that remove, too</translation>
    </message>
    <message>
        <source>oma tapahtuma joka riville; virheen jälkeen jatketaan</source>
        <translation>a transaction for each line; goes on after an error</translation>
    </message>
    <message>
        <source>komennot luetaan vakiosyötteestä, yksi JSON-olio rivillä</source>
        <translation>commands are read from standard input, a JSON object a line</translation>
    </message>
    <message>
        <source>valinnat --each ja --key sulkevat toisensa pois</source>
        <translation>the options --each and --key exclude each other</translation>
    </message>
    <message>
        <source>komennot JSON-riveinä vakiosyötteestä, yhtenä tapahtumana</source>
        <translation>commands as JSON lines on standard input, one transaction</translation>
    </message>
    <message>
        <source>komennot, kentät ja virhekoodit JSON-muodossa</source>
        <translation>commands, fields and error codes as JSON</translation>
    </message>
    <message>
        <source>Model Context Protocol -palvelin vakiosyötteessä ja -tulosteessa</source>
        <translation>Model Context Protocol server on standard input and output</translation>
    </message>
    <message>
        <source>komentotulkin täydennys</source>
        <translation>completion for a shell</translation>
    </message>
    <message>
        <source>ohje komennosta tai aiheesta</source>
        <translation>help on a command or topic</translation>
    </message>
    <message>
        <source>tiedoston nimi; sen pääte on muoto, .pdf tai .csv; - on vakiotuloste</source>
        <translation>name of the file; its suffix is the format, .pdf or .csv; - is standard output</translation>
    </message>
    <message>
        <source>sarakkeet, pilkuin erotettuina</source>
        <translation>columns, separated by commas</translation>
    </message>
    <message>
        <source>sivu vaakaan</source>
        <translation>landscape</translation>
    </message>
    <message>
        <source>sarake, jonka mukaan järjestetään</source>
        <translation>column to sort by</translation>
    </message>
    <message>
        <source>saraketta ei ole: %1</source>
        <translation>no such column: %1</translation>
    </message>
    <message>
        <source>laskuluettelo, PDF tai CSV</source>
        <translation>list of invoices, PDF or CSV</translation>
    </message>
    <message>
        <source>suorituspäiväkirja, PDF tai CSV</source>
        <translation>journal of payments, PDF or CSV</translation>
    </message>
    <message>
        <source>asiakasluettelo, PDF tai CSV</source>
        <translation>list of customers, PDF or CSV</translation>
    </message>
    <message>
        <source>tuoteluettelo, PDF tai CSV</source>
        <translation>list of products, PDF or CSV</translation>
    </message>
    <message>
        <source>rivin paikka laskulla, ensimmäinen on 1</source>
        <translation>place of the row on the invoice, the first is 1</translation>
    </message>
    <message>
        <source>tuote; - on rivi ilman tuotetta</source>
        <translation>product; - is a row without a product</translation>
    </message>
    <message>
        <source>määrä; 1, jos sitä ei anneta</source>
        <translation>quantity; 1 unless given</translation>
    </message>
    <message>
        <source>toinen tuote</source>
        <translation>another product</translation>
    </message>
    <message>
        <source>rivien paikat laskulla</source>
        <translation>places of the rows on the invoice</translation>
    </message>
    <message>
        <source>Lasku %1: rivi %2 lisätty, summa %3</source>
        <translation>Invoice %1: row %2 added, total %3</translation>
    </message>
    <message>
        <source>Lasku %1: rivi %2 muutettu, summa %3</source>
        <translation>Invoice %1: row %2 changed, total %3</translation>
    </message>
    <message>
        <source>Poistetaanko laskulta %1 rivi %2?</source>
        <translation>Remove from invoice %1 row %2?</translation>
    </message>
    <message>
        <source>Lasku %1: rivi %2 poistettu, summa %3</source>
        <translation>Invoice %1: row %2 removed, total %3</translation>
    </message>
    <message>
        <source>uusi rivi laskulle</source>
        <translation>a new row of an invoice</translation>
    </message>
    <message>
        <source>muuttaa laskun riviä</source>
        <translation>changes a row of an invoice</translation>
    </message>
    <message>
        <source>poistaa laskun rivejä</source>
        <translation>removes rows of an invoice</translation>
    </message>
    <message>
        <source>myös tyhjät</source>
        <translation>the empty ones too</translation>
    </message>
    <message>
        <source>asetuksen avain; ryhmän voi jättää pois, jos se on selvä</source>
        <translation>key of the setting; its group may be left out where that is clear</translation>
    </message>
    <message>
        <source>tiedosto ei ole kuva</source>
        <translation>the file is no image</translation>
    </message>
    <message>
        <source>arvo ei ole oikein</source>
        <translation>the value is not right</translation>
    </message>
    <message>
        <source>asetuksia muodossa AVAIN=ARVO; tyhjä arvo poistaa</source>
        <translation>settings as KEY=VALUE; an empty value removes</translation>
    </message>
    <message>
        <source>anna AVAIN=ARVO</source>
        <translation>give KEY=VALUE</translation>
    </message>
    <message>
        <source>poistettavat asetukset</source>
        <translation>settings to remove</translation>
    </message>
    <message>
        <source>muokkain tarvitsee päätteen; käytä komentoa settings set</source>
        <translation>the editor needs a terminal; use settings set</translation>
    </message>
    <message>
        <source>yrityksen tiedot ja asetukset</source>
        <translation>the company's details and settings</translation>
    </message>
    <message>
        <source>yhden asetuksen arvo</source>
        <translation>the value of a setting</translation>
    </message>
    <message>
        <source>tallentaa asetuksia, kaikki tai ei mitään</source>
        <translation>saves settings, all or none</translation>
    </message>
    <message>
        <source>poistaa asetuksia</source>
        <translation>removes settings</translation>
    </message>
    <message>
        <source>asetukset muokkaimessa</source>
        <translation>the settings in the editor</translation>
    </message>
    <message>
        <source>yrityksen nimi</source>
        <translation>name of the company</translation>
    </message>
    <message>
        <source>tietokannan tiedosto</source>
        <translation>file of the database</translation>
    </message>
    <message>
        <source>Y-tunnus</source>
        <translation>business ID</translation>
    </message>
    <message>
        <source>katuosoite</source>
        <translation>street</translation>
    </message>
    <message>
        <source>postinumero</source>
        <translation>post code</translation>
    </message>
    <message>
        <source>postitoimipaikka</source>
        <translation>town</translation>
    </message>
    <message>
        <source>sähköposti</source>
        <translation>e-mail</translation>
    </message>
    <message>
        <source>puhelin</source>
        <translation>phone</translation>
    </message>
    <message>
        <source>pankkitili, IBAN</source>
        <translation>bank account, IBAN</translation>
    </message>
    <message>
        <source>pankin tunnus; suomalaisille pankeille ohjelma tietää sen</source>
        <translation>the bank's code; known to the program for Finnish banks</translation>
    </message>
    <message>
        <source>maksuehto uusille laskuille, "14 pv netto"</source>
        <translation>payment terms of new invoices, "14 pv netto"</translation>
    </message>
    <message>
        <source>valinta --name puuttuu</source>
        <translation>option --name is missing</translation>
    </message>
    <message>
        <source>valinta --iban puuttuu</source>
        <translation>option --iban is missing</translation>
    </message>
    <message>
        <source>anna joko --file tai --postgresql</source>
        <translation>give either --file or --postgresql</translation>
    </message>
    <message>
        <source>tiedoston nimi ei ole oikein</source>
        <translation>the file name is not right</translation>
    </message>
    <message>
        <source>Yrityksen nimi</source>
        <translation>Name of the company</translation>
    </message>
    <message>
        <source>Katuosoite</source>
        <translation>Street</translation>
    </message>
    <message>
        <source>Postinumero</source>
        <translation>Post code</translation>
    </message>
    <message>
        <source>Postitoimipaikka</source>
        <translation>Town</translation>
    </message>
    <message>
        <source>Sähköposti</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Puhelin</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Pankkitili (IBAN)</source>
        <translation>Bank account (IBAN)</translation>
    </message>
    <message>
        <source>Maksuehto</source>
        <translation>Payment terms</translation>
    </message>
    <message>
        <source>Tietokannan tiedosto</source>
        <translation>File of the database</translation>
    </message>
    <message>
        <source>Uusi yritys. Tyhjä vastaus hyväksyy ehdotuksen, &lt; palaa edelliseen.</source>
        <translation>A new company. An empty answer takes the proposal, &lt; goes back.</translation>
    </message>
    <message>
        <source>Yritys %1 luotu: %2, %3</source>
        <translation>Company %1 created: %2, %3</translation>
    </message>
    <message>
        <source>NIMI</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>1 lasku</source>
        <translation>1 invoice</translation>
    </message>
    <message>
        <source>%1 laskua</source>
        <translation>%1 invoices</translation>
    </message>
    <message>
        <source>%1
Avoinna    %2, %3
Erääntynyt %4, %5</source>
        <translation>%1
Open    %2, %3
Overdue %4, %5</translation>
    </message>
    <message>
        <source>korjaa laskujen summat ja avoimet rivien ja suoritusten mukaan</source>
        <translation>corrects totals and balances by rows and payments</translation>
    </message>
    <message>
        <source>Korjataanko laskujen summat rivien ja suoritusten mukaan?</source>
        <translation>Correct the invoices' totals by rows and payments?</translation>
    </message>
    <message>
        <source>Tietokanta ja kirjat ovat kunnossa.</source>
        <translation>The database and the books are in order.</translation>
    </message>
    <message>
        <source>uusi tiedosto</source>
        <translation>new file</translation>
    </message>
    <message>
        <source>tiedoston nimi puuttuu</source>
        <translation>the file name is missing</translation>
    </message>
    <message>
        <source>Varmuuskopio: %1, %2 tavua</source>
        <translation>Backup: %1, %2 bytes</translation>
    </message>
    <message>
        <source>Hakemistot olivat kunnossa.</source>
        <translation>The indexes were in order.</translation>
    </message>
    <message>
        <source>Lisätty hakemistot: %1</source>
        <translation>Indexes added: %1</translation>
    </message>
    <message>
        <source>luo yrityksen: tietokanta, myyjän tiedot, pankkitili</source>
        <translation>makes a company: database, seller's details, bank account</translation>
    </message>
    <message>
        <source>yritys, avoimet ja erääntyneet</source>
        <translation>the company, what is open and overdue</translation>
    </message>
    <message>
        <source>tarkistaa tiedoston, rakenteen ja kirjat</source>
        <translation>looks over file, schema and books</translation>
    </message>
    <message>
        <source>kopioi tietokannan tiedostoon, muiden kirjoittaessakin</source>
        <translation>copies the database to a file, also while others write</translation>
    </message>
    <message>
        <source>puuttuvat hakemistot ja tilastot</source>
        <translation>missing indexes and statistics</translation>
    </message>
    <message>
        <source>laskut</source>
        <translation>invoices</translation>
    </message>
    <message>
        <source>laskun rivit</source>
        <translation>rows of an invoice</translation>
    </message>
    <message>
        <source>saadut suoritukset</source>
        <translation>payments received</translation>
    </message>
    <message>
        <source>luettelot ihmisille, PDF tai CSV</source>
        <translation>lists for people, PDF or CSV</translation>
    </message>
    <message>
        <source>lähetettyjen asiakirjojen päiväkirja</source>
        <translation>journal of the documents that were sent</translation>
    </message>
    <message>
        <source>yritysten tietokannat</source>
        <translation>databases of companies</translation>
    </message>
    <message>
        <source>vain päätteellä</source>
        <translation>on terminals only</translation>
    </message>
    <message>
        <source>aina</source>
        <translation>always</translation>
    </message>
    <message>
        <source>ei koskaan</source>
        <translation>never</translation>
    </message>
    <message>
        <source>suomi</source>
        <translation>Finnish</translation>
    </message>
    <message>
        <source>englanti</source>
        <translation>English</translation>
    </message>
    <message>
        <source>asetustiedosto</source>
        <translation>settings file</translation>
    </message>
    <message>
        <source>yrityksen numero, SQLite-tiedosto tai malli kuten "asiakas*"</source>
        <translation>a company's number, an SQLite file, or a pattern such as "client*"</translation>
    </message>
    <message>
        <source>vastaus JSON-muodossa</source>
        <translation>answer as JSON</translation>
    </message>
    <message>
        <source>vastaus JSON-riveinä, yksi tietue rivillä</source>
        <translation>answer as JSON Lines, a record a line</translation>
    </message>
    <message>
        <source>vastaus CSV-muodossa</source>
        <translation>answer as CSV</translation>
    </message>
    <message>
        <source>vastauksen kentät ja niiden järjestys</source>
        <translation>fields of the answer and their order</translation>
    </message>
    <message>
        <source>vain tietueiden numerot</source>
        <translation>only the numbers of records</translation>
    </message>
    <message>
        <source>ei kysymyksiä: kaikkiin vastataan kyllä</source>
        <translation>no questions: all are answered with yes</translation>
    </message>
    <message>
        <source>virhe kysymisen sijaan</source>
        <translation>an error rather than a question</translation>
    </message>
    <message>
        <source>tekee kaiken, mutta ei tallenna mitään</source>
        <translation>does everything and keeps nothing</translation>
    </message>
    <message>
        <source>toistettavan pyynnön avain: sama avain ei tee samaa kahdesti</source>
        <translation>key of a repeatable request: nothing is done twice</translation>
    </message>
    <message>
        <source>tekstien kieli</source>
        <translation>language of the texts</translation>
    </message>
    <message>
        <source>värit</source>
        <translation>colours</translation>
    </message>
    <message>
        <source>kertoo, mitä ohjelma tekee</source>
        <translation>tells what the program does</translation>
    </message>
    <message>
        <source>ohje</source>
        <translation>help</translation>
    </message>
    <message>
        <source>ohjelman versio</source>
        <translation>version of the program</translation>
    </message>
    <message>
        <source>Yritys</source>
        <translation>Company</translation>
    </message>
    <message>
        <source>anna OTSIKKO=KENTTÄ</source>
        <translation>give TITLE=FIELD</translation>
    </message>
    <message>
        <source>rivin %1 lainausmerkit eivät täsmää</source>
        <translation>the quotes of line %1 do not match</translation>
    </message>
    <message>
        <source>tiedostossa ei ole otsikkoriviä</source>
        <translation>the file has no title line</translation>
    </message>
    <message>
        <source>tuntematon otsikko: %1</source>
        <translation>unknown title: %1</translation>
    </message>
    <message>
        <source>rivillä %1 on liikaa sarakkeita</source>
        <translation>too many columns in line %1</translation>
    </message>
    <message>
        <source>tuntematon rivi: %1</source>
        <translation>unknown line: %1</translation>
    </message>
    <message>
        <source>muokkain ei onnistunut: %1</source>
        <translation>the editor failed: %1</translation>
    </message>
    <message>
        <source>Tallenna ja sulje; tyhjä tai muuttamaton tiedosto ei muuta mitään.</source>
        <translation>Save and close; an empty or unchanged file changes nothing.</translation>
    </message>
    <message>
        <source>Rivit: row: TUOTE [MÄÄRÄ] [KENTTÄ=ARVO]… text=teksti</source>
        <translation>Rows: row: PRODUCT [QUANTITY] [FIELD=VALUE]… text=words</translation>
    </message>
    <message>
        <source>yhteys tietokantaan katkesi</source>
        <translation>the connection to the database was lost</translation>
    </message>
    <message>
        <source>toinen ohjelma varaa tietokantaa: %1</source>
        <translation>another program holds the database: %1</translation>
    </message>
    <message>
        <source>yrityksen numero on jo käytössä: %1</source>
        <translation>the company's number is taken: %1</translation>
    </message>
    <message>
        <source>yritystä ei löytynyt: %1</source>
        <translation>company not found: %1</translation>
    </message>
    <message>
        <source>asetustiedostoa ei voi kirjoittaa: %1</source>
        <translation>the settings file cannot be written: %1</translation>
    </message>
    <message>
        <source>laskupohjan nimi on jo käytössä: "%1"</source>
        <translation>the layout's name is taken: "%1"</translation>
    </message>
    <message>
        <source>yritystä ei ole vielä luotu</source>
        <translation>there is no company yet</translation>
    </message>
    <message>
        <source>tietokantaa ei löytynyt: %1</source>
        <translation>database not found: %1</translation>
    </message>
    <message>
        <source>pankkitiliä ei löytynyt: id:%1</source>
        <translation>bank account not found: id:%1</translation>
    </message>
    <message>
        <source>pankkitiliä ei löytynyt: "%1"</source>
        <translation>bank account not found: "%1"</translation>
    </message>
    <message>
        <source>pankkitilejä on useita: "%1"</source>
        <translation>several bank accounts: "%1"</translation>
    </message>
    <message>
        <source>asiakasta ei löytynyt: id:%1</source>
        <translation>customer not found: id:%1</translation>
    </message>
    <message>
        <source>asiakasta ei löytynyt numerolla %1</source>
        <translation>no customer of number %1</translation>
    </message>
    <message>
        <source>asiakasta ei löytynyt: "%1"</source>
        <translation>customer not found: "%1"</translation>
    </message>
    <message>
        <source>asiakkaita on useita: "%1"</source>
        <translation>several customers: "%1"</translation>
    </message>
    <message>
        <source>tuotetta ei löytynyt: id:%1</source>
        <translation>product not found: id:%1</translation>
    </message>
    <message>
        <source>tuotetta ei löytynyt: "%1"</source>
        <translation>product not found: "%1"</translation>
    </message>
    <message>
        <source>tuotteita on useita: "%1"</source>
        <translation>several products: "%1"</translation>
    </message>
    <message>
        <source>laskua ei löytynyt: id:%1</source>
        <translation>invoice not found: id:%1</translation>
    </message>
    <message>
        <source>laskua ei löytynyt numerolla %1</source>
        <translation>no invoice of number %1</translation>
    </message>
    <message>
        <source>laskuriviä ei löytynyt: id:%1</source>
        <translation>invoice row not found: id:%1</translation>
    </message>
    <message>
        <source>suoritusta ei löytynyt: id:%1</source>
        <translation>payment not found: id:%1</translation>
    </message>
    <message>
        <source>asiakirjoja tekevää osaa ei voi ladata: %1</source>
        <translation>the part that makes documents cannot be loaded: %1</translation>
    </message>
    <message>
        <source>laskupohjaa ei löytynyt: "%1"</source>
        <translation>layout not found: "%1"</translation>
    </message>
    <message>
        <source>laskupohjaa ei voi lukea</source>
        <translation>the layout cannot be read</translation>
    </message>
    <message>
        <source>laskupohjan virhe: %1 (rivi %2)</source>
        <translation>error in the layout: %1 (line %2)</translation>
    </message>
    <message>
        <source>laskupohjassa ei ole tulostavaa funktiota</source>
        <translation>the layout has no function that draws</translation>
    </message>
    <message>
        <source>tiedostoa %1 ei voi kirjoittaa: %2</source>
        <translation>file %1 cannot be written: %2</translation>
    </message>
    <message>
        <source>tiedosto on jo olemassa: %1</source>
        <translation>the file exists already: %1</translation>
    </message>
    <message>
        <source>laskun loppusumma on liian suuri</source>
        <translation>the invoice's total is too large</translation>
    </message>
    <message>
        <source>rivin summa on liian suuri</source>
        <translation>the row's total is too large</translation>
    </message>
    <message>
        <source>asiakas puuttuu</source>
        <translation>the customer is missing</translation>
    </message>
    <message>
        <source>seuraavaa laskunumeroa ei ole</source>
        <translation>there is no next invoice number</translation>
    </message>
    <message>
        <source>seuraavaa asiakasnumeroa ei ole</source>
        <translation>there is no next customer number</translation>
    </message>
    <message>
        <source>maksuehto vie kalenterin yli: "%1"</source>
        <translation>the payment terms lead beyond the calendar: "%1"</translation>
    </message>
    <message>
        <source>avataan SQLite-tietokanta %1</source>
        <translation>opening SQLite database %1</translation>
    </message>
    <message>
        <source>avataan PostgreSQL-tietokanta %1</source>
        <translation>opening PostgreSQL database %1</translation>
    </message>
    <message>
        <source>tallennetaan lasku %1</source>
        <translation>saving invoice %1</translation>
    </message>
    <message>
        <source>tallennetaan laskun id:%1 rivi %2</source>
        <translation>saving row %2 of invoice id:%1</translation>
    </message>
    <message>
        <source>tallennetaan suoritus</source>
        <translation>saving a payment</translation>
    </message>
    <message>
        <source>Tunniste</source>
        <translation>Id</translation>
    </message>
    <message>
        <source>Nimi</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>pankin nimi, kuten se tulostetaan</source>
        <translation>the bank's name as it is printed</translation>
    </message>
    <message>
        <source>Lyhyt nimi</source>
        <translation>Short name</translation>
    </message>
    <message>
        <source>IBAN</source>
        <translation>IBAN</translation>
    </message>
    <message>
        <source>tilinumero, välilyönneillä tai ilman</source>
        <translation>account number, with blanks or without</translation>
    </message>
    <message>
        <source>BIC</source>
        <translation>BIC</translation>
    </message>
    <message>
        <source>Järjestys</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>paikka luettelossa</source>
        <translation>place in the list</translation>
    </message>
    <message>
        <source>Näkyvissä</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>tulostetaan laskuille</source>
        <translation>printed on invoices</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Laji</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Tiedosto</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Palvelin</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>Tietokanta</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Valittu</source>
        <translation>Selected</translation>
    </message>
    <message>
        <source>Ennen</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>tietokannan rakenteen versio ennen päivitystä</source>
        <translation>the version of the schema before the upgrade</translation>
    </message>
    <message>
        <source>Jälkeen</source>
        <translation>After</translation>
    </message>
    <message>
        <source>tietokannan rakenteen versio päivityksen jälkeen</source>
        <translation>the version of the schema after the upgrade</translation>
    </message>
    <message>
        <source>Virhe</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Avain</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>Arvo</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Selitys</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Tarkistus</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>Taulu</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Havainto</source>
        <translation>Finding</translation>
    </message>
    <message>
        <source>tallennettu</source>
        <translation>saved</translation>
    </message>
    <message>
        <source>tallennettu jo aiemmin</source>
        <translation>imported before</translation>
    </message>
    <message>
        <source>kohdistamatta</source>
        <translation>unmatched</translation>
    </message>
    <message>
        <source>useita laskuja</source>
        <translation>several invoices</translation>
    </message>
    <message>
        <source>Rivi</source>
        <translation>Row</translation>
    </message>
    <message>
        <source>Päivä</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Summa</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Viite</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>Maksaja</source>
        <translation>Payer</translation>
    </message>
    <message>
        <source>Arkistotunnus</source>
        <translation>Archive id</translation>
    </message>
    <message>
        <source>Tilin tunniste</source>
        <translation>Account id</translation>
    </message>
    <message>
        <source>Lasku</source>
        <translation>Invoice</translation>
    </message>
    <message>
        <source>Tulos</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>Syy</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>ruotsi</source>
        <translation>Swedish</translation>
    </message>
    <message>
        <source>luvun pitää olla vähintään 0</source>
        <translation>the number must be at least 0</translation>
    </message>
    <message>
        <source>asiakasnumero; seuraava, jos sitä ei anneta</source>
        <translation>customer number; the next one unless given</translation>
    </message>
    <message>
        <source>Yhteyshenkilö</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Maa</source>
        <translation>Country</translation>
    </message>
    <message>
        <source>Y-tunnus tai ALV-numero</source>
        <translation>business ID or VAT number</translation>
    </message>
    <message>
        <source>Viitenumero</source>
        <translation>Reference number</translation>
    </message>
    <message>
        <source>oma viitenumero kaikille laskuille; # lopussa on tarkiste</source>
        <translation>own reference for all invoices; # at the end is the check digit</translation>
    </message>
    <message>
        <source>Lisätieto 1</source>
        <translation>Extra 1</translation>
    </message>
    <message>
        <source>Lisätieto 2</source>
        <translation>Extra 2</translation>
    </message>
    <message>
        <source>Kieli</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>asiakkaan asiakirjojen kieli</source>
        <translation>language of the customer's documents</translation>
    </message>
    <message>
        <source>Verkkolaskuosoite</source>
        <translation>E-invoice address</translation>
    </message>
    <message>
        <source>Verkkolaskuoperaattori</source>
        <translation>E-invoice operator</translation>
    </message>
    <message>
        <source>välittäjän tunnus</source>
        <translation>the intermediator's code</translation>
    </message>
    <message>
        <source>Osoitteen laji</source>
        <translation>Address scheme</translation>
    </message>
    <message>
        <source>verkkolaskuosoitteen laji (EAS), jos se ei selviä osoitteesta</source>
        <translation>scheme of the e-invoice address (EAS), when the address does not tell</translation>
    </message>
    <message>
        <source>Verkkolaskun muoto</source>
        <translation>E-invoice format</translation>
    </message>
    <message>
        <source>Ostajan viite</source>
        <translation>Buyer reference</translation>
    </message>
    <message>
        <source>viite laskuille, joilla ei ole omaa</source>
        <translation>reference for invoices without their own</translation>
    </message>
    <message>
        <source>Maakoodi</source>
        <translation>Country code</translation>
    </message>
    <message>
        <source>ISO 3166, jos maan nimeä ei tunneta</source>
        <translation>ISO 3166, when the country's name is not known</translation>
    </message>
    <message>
        <source>Veroluokka</source>
        <translation>VAT category</translation>
    </message>
    <message>
        <source>veroluokka riveille, joiden vero on 0 %</source>
        <translation>VAT category of rows at 0 %</translation>
    </message>
    <message>
        <source>Verottomuuden syy</source>
        <translation>Exemption reason</translation>
    </message>
    <message>
        <source>Verottomuuden koodi</source>
        <translation>Exemption code</translation>
    </message>
    <message>
        <source>verottomuuden syyn koodi (VATEX)</source>
        <translation>code of the exemption reason (VATEX)</translation>
    </message>
    <message>
        <source>Toimitus: nimi</source>
        <translation>Deliver to: name</translation>
    </message>
    <message>
        <source>Toimitus: katuosoite</source>
        <translation>Deliver to: street</translation>
    </message>
    <message>
        <source>Toimitus: postinumero</source>
        <translation>Deliver to: post code</translation>
    </message>
    <message>
        <source>Toimitus: postitoimipaikka</source>
        <translation>Deliver to: town</translation>
    </message>
    <message>
        <source>Toimitus: maa</source>
        <translation>Deliver to: country</translation>
    </message>
    <message>
        <source>Sopimusnumero</source>
        <translation>Contract number</translation>
    </message>
    <message>
        <source>Tiliöintiviite</source>
        <translation>Accounting reference</translation>
    </message>
    <message>
        <source>ostajan tiliöintiviite</source>
        <translation>the buyer's accounting reference</translation>
    </message>
    <message>
        <source>Avoimia laskuja</source>
        <translation>Open invoices</translation>
    </message>
    <message>
        <source>Avoinna</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Sääntö</source>
        <translation>Rule</translation>
    </message>
    <message>
        <source>Vakavuus</source>
        <translation>Severity</translation>
    </message>
    <message>
        <source>Tieto</source>
        <translation>Term</translation>
    </message>
    <message>
        <source>standardin EN 16931 tieto</source>
        <translation>term of the standard EN 16931</translation>
    </message>
    <message>
        <source>Kenttä</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>missä tieto korjataan</source>
        <translation>where it is mended</translation>
    </message>
    <message>
        <source>Korjaus</source>
        <translation>Remedy</translation>
    </message>
    <message>
        <source>komento, jolla tieto annetaan</source>
        <translation>the command that sets it</translation>
    </message>
    <message>
        <source>laskun numero; seuraava, jos sitä ei anneta</source>
        <translation>number of the invoice; the next one unless given</translation>
    </message>
    <message>
        <source>laskun päivä; tänään, jos sitä ei anneta</source>
        <translation>date of the invoice; today unless given</translation>
    </message>
    <message>
        <source>Eräpäivä</source>
        <translation>Due date</translation>
    </message>
    <message>
        <source>eräpäivä; maksuehdon mukaan, jos sitä ei anneta</source>
        <translation>due date; by the payment terms unless given</translation>
    </message>
    <message>
        <source>Asiakkaan tunniste</source>
        <translation>Customer id</translation>
    </message>
    <message>
        <source>As.nro</source>
        <translation>Cust. no</translation>
    </message>
    <message>
        <source>viitenumero; # lopussa on tarkiste</source>
        <translation>reference number; # at the end is the check digit</translation>
    </message>
    <message>
        <source>Tila</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Veroton</source>
        <translation>Net</translation>
    </message>
    <message>
        <source>Vero</source>
        <translation>VAT</translation>
    </message>
    <message>
        <source>Maksettu</source>
        <translation>Paid</translation>
    </message>
    <message>
        <source>maksuehto; sen ensimmäinen luku on päiviä</source>
        <translation>payment terms; their first number is days</translation>
    </message>
    <message>
        <source>Viivästyskorko-%</source>
        <translation>Interest-%</translation>
    </message>
    <message>
        <source>Toimitustapa</source>
        <translation>Delivery</translation>
    </message>
    <message>
        <source>Toimituspäivä</source>
        <translation>Delivery date</translation>
    </message>
    <message>
        <source>Viitteenne</source>
        <translation>Your reference</translation>
    </message>
    <message>
        <source>ostajan viite</source>
        <translation>the buyer's reference</translation>
    </message>
    <message>
        <source>Viitteemme</source>
        <translation>Our reference</translation>
    </message>
    <message>
        <source>myyjän viite</source>
        <translation>the seller's reference</translation>
    </message>
    <message>
        <source>Tilausnumero</source>
        <translation>Order number</translation>
    </message>
    <message>
        <source>ostajan tilausnumero</source>
        <translation>the buyer's order number</translation>
    </message>
    <message>
        <source>Projektinumero</source>
        <translation>Project number</translation>
    </message>
    <message>
        <source>Hyvitettävä lasku</source>
        <translation>Credited invoice</translation>
    </message>
    <message>
        <source>hyvitettävän laskun numero</source>
        <translation>number of the credited invoice</translation>
    </message>
    <message>
        <source>Hyvitettävän päivä</source>
        <translation>Date of the credited</translation>
    </message>
    <message>
        <source>hyvitettävän laskun päivä</source>
        <translation>date of the credited invoice</translation>
    </message>
    <message>
        <source>Kausi alkaa</source>
        <translation>Period begins</translation>
    </message>
    <message>
        <source>laskutuskauden alku</source>
        <translation>begin of the invoicing period</translation>
    </message>
    <message>
        <source>Kausi päättyy</source>
        <translation>Period ends</translation>
    </message>
    <message>
        <source>laskutuskauden loppu</source>
        <translation>end of the invoicing period</translation>
    </message>
    <message>
        <source>Verokannat</source>
        <translation>VAT rates</translation>
    </message>
    <message>
        <source>Rivit</source>
        <translation>Rows</translation>
    </message>
    <message>
        <source>Suoritukset</source>
        <translation>Payments</translation>
    </message>
    <message>
        <source>korkolasku</source>
        <translation>interest invoice</translation>
    </message>
    <message>
        <source>hyvityslasku</source>
        <translation>credit note</translation>
    </message>
    <message>
        <source>tyhjä</source>
        <translation>empty</translation>
    </message>
    <message>
        <source>maksettu</source>
        <translation>paid</translation>
    </message>
    <message>
        <source>avoin</source>
        <translation>open</translation>
    </message>
    <message>
        <source>erääntynyt</source>
        <translation>overdue</translation>
    </message>
    <message>
        <source>hyvitys</source>
        <translation>credit</translation>
    </message>
    <message>
        <source>Aika</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>lähettämisen aika, UTC</source>
        <translation>time of sending, UTC</translation>
    </message>
    <message>
        <source>Laskun tunniste</source>
        <translation>Invoice id</translation>
    </message>
    <message>
        <source>Muoto</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Tiedoston SHA-256</source>
        <translation>SHA-256 of the file</translation>
    </message>
    <message>
        <source>Laskun SHA-256</source>
        <translation>SHA-256 of the invoice</translation>
    </message>
    <message>
        <source>lasku riveineen sellaisena kuin se lähetettiin</source>
        <translation>the invoice with its rows as it was sent</translation>
    </message>
    <message>
        <source>Edellisen SHA-256</source>
        <translation>SHA-256 before</translation>
    </message>
    <message>
        <source>edellisen rivin SHA-256</source>
        <translation>SHA-256 of the line before</translation>
    </message>
    <message>
        <source>Rivin SHA-256</source>
        <translation>SHA-256 of the line</translation>
    </message>
    <message>
        <source>rikki</source>
        <translation>broken</translation>
    </message>
    <message>
        <source>muutettu</source>
        <translation>changed</translation>
    </message>
    <message>
        <source>poistettu</source>
        <translation>removed</translation>
    </message>
    <message>
        <source>lisätty</source>
        <translation>added</translation>
    </message>
    <message>
        <source>loppu tuntematon</source>
        <translation>end unknown</translation>
    </message>
    <message>
        <source>lasku muuttunut</source>
        <translation>invoice changed</translation>
    </message>
    <message>
        <source>lasku poistettu</source>
        <translation>invoice gone</translation>
    </message>
    <message>
        <source>laskun numero</source>
        <translation>number of the invoice</translation>
    </message>
    <message>
        <source>suorituksen päivä</source>
        <translation>date of the payment</translation>
    </message>
    <message>
        <source>Tili</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>luku on liian suuri</source>
        <translation>the number is too large</translation>
    </message>
    <message>
        <source>tuotenumero, voi olla myös tekstiä</source>
        <translation>product number, may be a text</translation>
    </message>
    <message>
        <source>Yksikkö</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Hinta</source>
        <translation>Price</translation>
    </message>
    <message>
        <source>yksikköhinta ilman arvonlisäveroa</source>
        <translation>unit price without VAT</translation>
    </message>
    <message>
        <source>Verollinen hinta</source>
        <translation>Price with VAT</translation>
    </message>
    <message>
        <source>yksikköhinta arvonlisäveroineen</source>
        <translation>unit price with VAT</translation>
    </message>
    <message>
        <source>Hinta sisältää veron</source>
        <translation>Price includes VAT</translation>
    </message>
    <message>
        <source>Vero-%</source>
        <translation>VAT-%</translation>
    </message>
    <message>
        <source>arvonlisäveroprosentti</source>
        <translation>VAT rate in percent</translation>
    </message>
    <message>
        <source>Ryhmä</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>paikka laskulla, ensimmäinen on 1</source>
        <translation>place on the invoice, the first is 1</translation>
    </message>
    <message>
        <source>Tuote</source>
        <translation>Product</translation>
    </message>
    <message>
        <source>tuotenumero</source>
        <translation>product number</translation>
    </message>
    <message>
        <source>tuotteen nimi tällä rivillä</source>
        <translation>name of the product on this row</translation>
    </message>
    <message>
        <source>Määrä</source>
        <translation>Quantity</translation>
    </message>
    <message>
        <source>Alennus-%</source>
        <translation>Discount-%</translation>
    </message>
    <message>
        <source>Teksti</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>vapaa teksti rivin alle</source>
        <translation>free text below the row</translation>
    </message>
    <message>
        <source>rivin oma veroluokka, jos vero on 0 %</source>
        <translation>the row's own VAT category, when its VAT is 0 %</translation>
    </message>
    <message>
        <source>Päivät ja ajanjaksot</source>
        <translation>Dates and periods</translation>
    </message>
    <message>
        <source>Päivä: 2026-03-31, 31.3.2026, 31.3. (tämä vuosi), today, yesterday, tomorrow, +14d, -1m.
Ajanjakso lisäksi: 2026, 2026-03, 3/2026, 2026q1, A..B, this-month, last-month, this-year, last-year.
Päivä on aina ennen kuukautta; 3/31/2026 ei kelpaa.</source>
        <translation>A date: 2026-03-31, 31.3.2026, 31.3. (this year), today, yesterday, tomorrow, +14d, -1m.
A period besides: 2026, 2026-03, 3/2026, 2026q1, A..B, this-month, last-month, this-year, last-year.
The day always stands before the month; 3/31/2026 is refused.</translation>
    </message>
    <message>
        <source>Rahat ja luvut</source>
        <translation>Money and numbers</translation>
    </message>
    <message>
        <source>Desimaalien edessä on pilkku tai piste, tuhansien välissä voi olla väli, perässä € tai %: 1 234,50 €.
1.234,50 ja 1,234.50 eivät kelpaa: kirjoita 1234,50.
Desimaaleja enintään: summat 2, hinnat ja määrät 4, prosentit 2. Mitään ei pyöristetä.</source>
        <translation>A point or a comma before the decimals, blanks between thousands, € or % behind: 1 234,50 €.
1.234,50 and 1,234.50 are refused: write 1234,50.
Decimals at most: sums 2, prices and quantities 4, percentages 2. Nothing is rounded.</translation>
    </message>
    <message>
        <source>Laskujen valinta</source>
        <translation>Selecting invoices</translation>
    </message>
    <message>
        <source>Numeroita ja välejä: 1001 1003 1010-1020 1030-; merkki - lukee lisää vakiosyötteestä, yhden rivillä.
Ehdot, joiden kaikkien on täytyttävä: --open --paid --overdue --state --customer --type --reference
--date --due-date --delivery-date --since --until --as-of --search. Järjestys ja määrä: --sort --limit.
Viittaukset: numero, nimi tai sen osa, id:7, @last.</source>
        <translation>Numbers and ranges: 1001 1003 1010-1020 1030-; - reads more from standard input, one a line.
Conditions, all of which must hold: --open --paid --overdue --state --customer --type --reference
--date --due-date --delivery-date --since --until --as-of --search. Order and number: --sort --limit.
References: a number, a name or part of it, id:7, @last.</translation>
    </message>
    <message>
        <source>JSON-muoto</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>--json on yksi taulukko tai olio, --jsonl yksi olio rivillä, aina UTF-8. Rahat, hinnat, määrät ja prosentit ovat
merkkijonoja ("2183.70"), tunnisteet ja numerot kokonaislukuja, päivät "2026-03-31", puuttuva on null.
Kenttien nimet ja tyypit, virhekoodit ja paluuarvot eivät muutu; uusia voi tulla lisää.
Virhe: {"error": {"code", "message", "option", "value", "suggestions", "exit"}} virhetulosteeseen.</source>
        <translation>--json is one array or object, --jsonl one object a line, always UTF-8. Money, prices, quantities and percentages are
strings ("2183.70"), ids and numbers integers, dates "2026-03-31", what is not set is null.
Names and types of fields, error codes and exit codes do not change; new ones may come.
An error: {"error": {"code", "message", "option", "value", "suggestions", "exit"}} on standard error.</translation>
    </message>
    <message>
        <source>Ympäristömuuttujat</source>
        <translation>Environment</translation>
    </message>
    <message>
        <source>BILLORA_CONFIG  asetustiedosto
BILLORA_DB      yrityksen numero tai SQLite-tiedosto
BILLORA_LANG    fi tai en
NO_COLOR TERM COLUMNS VISUAL EDITOR TMPDIR XDG_CONFIG_HOME XDG_DATA_HOME kuten muuallakin.</source>
        <translation>BILLORA_CONFIG  settings file
BILLORA_DB      number of a company or an SQLite file
BILLORA_LANG    fi or en
NO_COLOR TERM COLUMNS VISUAL EDITOR TMPDIR XDG_CONFIG_HOME XDG_DATA_HOME as elsewhere.</translation>
    </message>
    <message>
        <source>Esimerkkejä</source>
        <translation>Examples</translation>
    </message>
    <message>
        <source>Paluuarvot</source>
        <translation>Exit codes</translation>
    </message>
    <message>
        <source>billora: laskut, asiakkaat ja suoritukset komentoriviltä</source>
        <translation>billora: invoices, customers and payments on the command line</translation>
    </message>
    <message>
        <source>Komennot</source>
        <translation>Commands</translation>
    </message>
    <message>
        <source>Valinnat joka komennossa</source>
        <translation>Options of every command</translation>
    </message>
    <message>
        <source>Lisää: billora help KOMENTO tai aihe: %1</source>
        <translation>More: billora help COMMAND or a topic: %1</translation>
    </message>
    <message>
        <source>Lisää: billora help %1 KOMENTO</source>
        <translation>More: billora help %1 COMMAND</translation>
    </message>
    <message>
        <source>Käyttö</source>
        <translation>Usage</translation>
    </message>
    <message>
        <source>Valinnat</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Kentät (--fields)</source>
        <translation>Fields (--fields)</translation>
    </message>
    <message>
        <source>Katso myös</source>
        <translation>See also</translation>
    </message>
    <message>
        <source>laskun numero on jo käytössä: %1</source>
        <translation>the invoice number is taken: %1</translation>
    </message>
    <message>
        <source>lähetettyjen päiväkirjaa %1 ei voi käyttää: %2</source>
        <translation>the journal of sent documents %1 cannot be used: %2</translation>
    </message>
    <message>
        <source>kohta %1 ei ole päiväkirjan rivi</source>
        <translation>place %1 holds no line of the journal</translation>
    </message>
    <message>
        <source>rivi %1 puuttuu</source>
        <translation>line %1 is missing</translation>
    </message>
    <message>
        <source>rivit %1–%2 puuttuvat</source>
        <translation>lines %1–%2 are missing</translation>
    </message>
    <message>
        <source>rivi %1 on rivin %2 jäljessä: lisätty tai siirretty</source>
        <translation>line %1 stands behind line %2: added or moved</translation>
    </message>
    <message>
        <source>riviä %1 on muutettu</source>
        <translation>line %1 was changed</translation>
    </message>
    <message>
        <source>tieto viimeisestä rivistä puuttuu: lopusta voi puuttua rivejä</source>
        <translation>nothing tells which line is the last: lines may be missing at the end</translation>
    </message>
    <message>
        <source>tieto viimeisestä rivistä puuttui ennen riviä %1: lopusta on voinut puuttua rivejä</source>
        <translation>nothing told which line was the last before line %1: lines may have been missing at the end</translation>
    </message>
    <message>
        <source>viimeinen rivi %1 puuttuu</source>
        <translation>the last line %1 is missing</translation>
    </message>
    <message>
        <source>viimeiset rivit %1–%2 puuttuvat</source>
        <translation>the last lines %1–%2 are missing</translation>
    </message>
    <message>
        <source>rivi %1 on lisätty viimeisen rivin %2 jälkeen</source>
        <translation>line %1 was added behind the last line %2</translation>
    </message>
    <message>
        <source>virheellinen JSON: %1</source>
        <translation>invalid JSON: %1</translation>
    </message>
    <message>
        <source>%1, merkki %2</source>
        <translation>%1, character %2</translation>
    </message>
    <message>
        <source>rivi ei ole olio</source>
        <translation>the line is no object</translation>
    </message>
    <message>
        <source>nimi on kahdesti: %1</source>
        <translation>the name is there twice: %1</translation>
    </message>
    <message>
        <source>puolikas merkki: %1</source>
        <translation>half a character: %1</translation>
    </message>
    <message>
        <source>%1 ei voi olla tätä tyyppiä</source>
        <translation>%1 cannot be of this type</translation>
    </message>
    <message>
        <source>%1 on yksi teksti</source>
        <translation>%1 is a single text</translation>
    </message>
    <message>
        <source>args on yksi olio</source>
        <translation>args is a single object</translation>
    </message>
    <message>
        <source>tuntematon nimi: %1</source>
        <translation>unknown name: %1</translation>
    </message>
    <message>
        <source>command puuttuu</source>
        <translation>command is missing</translation>
    </message>
    <message>
        <source>laskut, asiakkaat ja suoritukset komentoriviltä</source>
        <translation>invoices, customers and payments on the command line</translation>
    </message>
    <message>
        <source>Yhteensä</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Laskut</source>
        <translation>Invoices</translation>
    </message>
    <message>
        <source>Verkkolasku</source>
        <translation>E-invoice</translation>
    </message>
    <message>
        <source>Tiedostot</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>valinnalta %1 puuttuu arvo</source>
        <translation>the value of option %1 is missing</translation>
    </message>
    <message>
        <source>valinta %1 on annettu kahdesti</source>
        <translation>option %1 is given twice</translation>
    </message>
    <message>
        <source>tuntematon valinta: %1</source>
        <translation>unknown option: %1</translation>
    </message>
    <message>
        <source>ylimääräinen sana: %1</source>
        <translation>a word too many: %1</translation>
    </message>
    <message>
        <source>%1 puuttuu</source>
        <translation>%1 is missing</translation>
    </message>
    <message>
        <source>valinta --%1 puuttuu</source>
        <translation>option --%1 is missing</translation>
    </message>
    <message>
        <source>tehty</source>
        <translation>done</translation>
    </message>
    <message>
        <source>virheellinen komentorivi</source>
        <translation>bad command line</translation>
    </message>
    <message>
        <source>tietokanta, tiedosto tai järjestelmä ei toimi</source>
        <translation>database, file or system failed</translation>
    </message>
    <message>
        <source>virheellinen tai puuttuva tieto</source>
        <translation>bad or missing data</translation>
    </message>
    <message>
        <source>vahvistus puuttuu tai vastaus oli ei</source>
        <translation>a confirmation is missing, or was no</translation>
    </message>
    <message>
        <source>toinen ohjelma varaa tietokantaa; yritä uudelleen</source>
        <translation>another program holds the database; try again</translation>
    </message>
    <message>
        <source>tehty, mutta jokin vaatii huomiota</source>
        <translation>done, and something needs a look</translation>
    </message>
    <message>
        <source>keskeytetty</source>
        <translation>interrupted</translation>
    </message>
    <message>
        <source>valinnat --%1 ja --%2 sulkevat toisensa pois</source>
        <translation>options --%1 and --%2 exclude each other</translation>
    </message>
    <message>
        <source>valinta --quiet ei sovi yhteen muodon kanssa</source>
        <translation>option --quiet does not go with a format</translation>
    </message>
    <message>
        <source>vastausta ei voi kirjoittaa: %1</source>
        <translation>the answer cannot be written: %1</translation>
    </message>
    <message>
        <source>yritys %1: </source>
        <translation>company %1: </translation>
    </message>
    <message>
        <source>Tarkoititko: </source>
        <translation>Did you mean: </translation>
    </message>
    <message>
        <source>Katso: </source>
        <translation>See: </translation>
    </message>
    <message>
        <source> [k/E] </source>
        <translation> [y/N] </translation>
    </message>
    <message>
        <source> Kirjoita määrä %1 vahvistukseksi: </source>
        <translation> Type the number %1 to confirm: </translation>
    </message>
    <message>
        <source>anna joko price tai priceWithVat, ei molempia</source>
        <translation>give either price or priceWithVat, not both</translation>
    </message>
    <message>
        <source>kenttä ei voi olla tyhjä: %1</source>
        <translation>the field cannot be empty: %1</translation>
    </message>
    <message>
        <source>rivillä ilman tuotetta pitää olla name</source>
        <translation>a row without a product needs a name</translation>
    </message>
    <message>
        <source>rivillä ilman tuotetta pitää olla price tai priceWithVat</source>
        <translation>a row without a product needs a price or priceWithVat</translation>
    </message>
    <message>
        <source>laskupohjia on useita: "%1"</source>
        <translation>several layouts: "%1"</translation>
    </message>
    <message>
        <source>laskua ei löytynyt: "%1"</source>
        <translation>invoice not found: "%1"</translation>
    </message>
    <message>
        <source>laskuja on useita: "%1"</source>
        <translation>several invoices: "%1"</translation>
    </message>
    <message>
        <source>suoritusta ei löytynyt: "%1"</source>
        <translation>payment not found: "%1"</translation>
    </message>
    <message>
        <source>suorituksia on useita: "%1"</source>
        <translation>several payments: "%1"</translation>
    </message>
    <message>
        <source>riviä ei ole laskulla: "%1"</source>
        <translation>the invoice has no row: "%1"</translation>
    </message>
    <message>
        <source>rivi on TUOTE [MÄÄRÄ] [KENTTÄ=ARVO]…</source>
        <translation>a row is PRODUCT [QUANTITY] [FIELD=VALUE]…</translation>
    </message>
    <message>
        <source>rivillä ei ole kenttää: %1</source>
        <translation>a row has no field: %1</translation>
    </message>
    <message>
        <source>rivi on tyhjä</source>
        <translation>the row is empty</translation>
    </message>
    <message>
        <source>valinta --key ei sovi komentoon %1</source>
        <translation>option --key does not go with the command %1</translation>
    </message>
    <message>
        <source>Pyyntö on jo tehty.</source>
        <translation>The request was made before.</translation>
    </message>
    <message>
        <source>vakiosyöte ja -tuloste ovat istunnon: %1</source>
        <translation>standard input and output are the session's: %1</translation>
    </message>
    <message>
        <source>laskun numero tai väli, kuten 1001 tai 1010-1020: %1</source>
        <translation>number or range of invoices, as 1001 or 1010-1020: %1</translation>
    </message>
    <message>
        <source>välin loppu on ennen alkua: %1</source>
        <translation>the range ends before it begins: %1</translation>
    </message>
    <message>
        <source>liian monta laskun numeroa kerralla</source>
        <translation>too many invoice numbers at once</translation>
    </message>
    <message>
        <source>kentän mukaan ei voi järjestää: %1</source>
        <translation>cannot be sorted by: %1</translation>
    </message>
    <message>
        <source>mitkä laskut? Anna numeroita, ehtoja tai valinta --all</source>
        <translation>which invoices? Give numbers, conditions or the option --all</translation>
    </message>
    <message>
        <source>Lasku %1 on lähetetty.</source>
        <translation>Invoice %1 has been sent.</translation>
    </message>
    <message>
        <source>lasku %1 on lähetetty; muutos vaatii valinnan --yes</source>
        <translation>invoice %1 has been sent; changing it needs --yes</translation>
    </message>
    <message>
        <source>Lasku %1 on lähetetty. Muutetaanko?</source>
        <translation>Invoice %1 has been sent. Change it?</translation>
    </message>
    <message>
        <source>Tietokannan salasana (tyhjä, jos sitä ei ole)</source>
        <translation>Password of the database (empty for none)</translation>
    </message>
    <message>
        <source>osoite on postgresql://KÄYTTÄJÄ@PALVELIN/TIETOKANTA</source>
        <translation>the address is postgresql://USER@HOST/DATABASE</translation>
    </message>
    <message>
        <source>salasana näkyisi kaikille; anna se tiedostossa: --password-file</source>
        <translation>everybody could see the password; give it in a file: --password-file</translation>
    </message>
    <message>
        <source>maa</source>
        <translation>country</translation>
    </message>
    <message>
        <source>verkkolaskun muoto: finvoice, finvoice3 tai peppol</source>
        <translation>e-invoice format: finvoice, finvoice3 or peppol</translation>
    </message>
    <message>
        <source>omat yksiköt: teksti=koodi, pilkuin erotettuina</source>
        <translation>own units: text=code, separated by commas</translation>
    </message>
    <message>
        <source>veroluokka riveille, joiden vero on 0 %: AE K G E O Z</source>
        <translation>VAT category of rows at 0 %: AE K G E O Z</translation>
    </message>
    <message>
        <source>verottomuuden syy</source>
        <translation>exemption reason</translation>
    </message>
    <message>
        <source>vastaanottajan oletusosoite Finvoicessa</source>
        <translation>default address of receivers in Finvoice</translation>
    </message>
    <message>
        <source>yrityksen OVT-tunnus</source>
        <translation>the company's OVT code</translation>
    </message>
    <message>
        <source>maksuehdotuksen tunniste</source>
        <translation>id of the payment proposal</translation>
    </message>
    <message>
        <source>yrityksen verkkolaskuoperaattori</source>
        <translation>the company's e-invoice operator</translation>
    </message>
    <message>
        <source>yrityksen verkkolaskuosoite</source>
        <translation>the company's e-invoice address</translation>
    </message>
    <message>
        <source>yrityksen verkkolaskuosoitteen laji (EAS)</source>
        <translation>scheme of the company's e-invoice address (EAS)</translation>
    </message>
    <message>
        <source>tulostetaanko viivakoodi</source>
        <translation>whether the barcode is printed</translation>
    </message>
    <message>
        <source>laskurivien sarakkeet, bittejä</source>
        <translation>columns of invoice rows, bits</translation>
    </message>
    <message>
        <source>asiakirjojen kieli</source>
        <translation>language of documents</translation>
    </message>
    <message>
        <source>logon korkeus, millimetriä</source>
        <translation>height of the logo, millimetres</translation>
    </message>
    <message>
        <source>ilmoitusteksti laskun alussa</source>
        <translation>notice at the beginning of an invoice</translation>
    </message>
    <message>
        <source>ilmoitusteksti laskun lopussa</source>
        <translation>notice at the end of an invoice</translation>
    </message>
    <message>
        <source>maksumuistutuksen teksti</source>
        <translation>text of payment reminders</translation>
    </message>
    <message>
        <source>veron pyöristys: 1 verokannoittain, 2 riveittäin</source>
        <translation>rounding of VAT: 1 by rate, 2 by row</translation>
    </message>
    <message>
        <source>valitun laskupohjan tunniste</source>
        <translation>id of the selected layout</translation>
    </message>
    <message>
        <source>tilin haltijan nimi</source>
        <translation>name of the account's holder</translation>
    </message>
    <message>
        <source>myyjän yhteyshenkilö</source>
        <translation>the seller's contact</translation>
    </message>
    <message>
        <source>myyjän oikeudelliset tiedot, kuten Ennakkoperintärekisterissä</source>
        <translation>the seller's legal information</translation>
    </message>
    <message>
        <source>veroviranomaisen tunnus, jos ALV-numeroa ei ole</source>
        <translation>id at the tax authority, without a VAT number</translation>
    </message>
    <message>
        <source>aputoiminimi</source>
        <translation>trade name</translation>
    </message>
    <message>
        <source>ALV-numero</source>
        <translation>VAT number</translation>
    </message>
    <message>
        <source>verkkosivu</source>
        <translation>web site</translation>
    </message>
    <message>
        <source>viivästyskorko</source>
        <translation>interest on arrears</translation>
    </message>
    <message>
        <source>maksuehto uusille laskuille</source>
        <translation>payment terms of new invoices</translation>
    </message>
    <message>
        <source>huomautusaika</source>
        <translation>period for complaints</translation>
    </message>
    <message>
        <source>viivästyskoron tuotenumero</source>
        <translation>product number of interest on arrears</translation>
    </message>
    <message>
        <source>viitenumeron loppu laskun numeron jälkeen</source>
        <translation>end of reference numbers behind the invoice number</translation>
    </message>
    <message>
        <source>viitenumeron malli</source>
        <translation>template of reference numbers</translation>
    </message>
    <message>
        <source>kuvatiedosto; näytetään kokona pikseleinä</source>
        <translation>image file; shown as its size in pixels</translation>
    </message>
    <message>
        <source>alatunnisteen teksti</source>
        <translation>text of the footer</translation>
    </message>
    <message>
        <source>asetusta ei ole: %1</source>
        <translation>no such setting: %1</translation>
    </message>
    <message>
        <source>asetuksia on useita: %1</source>
        <translation>several settings: %1</translation>
    </message>
    <message>
        <source>komento koskee yhtä yritystä kerrallaan</source>
        <translation>the command is for one company at a time</translation>
    </message>
    <message>
        <source>vahvistus puuttuu: anna valinta --yes</source>
        <translation>a confirmation is missing: give the option --yes</translation>
    </message>
    <message>
        <source>kirjoita 1234,50: piste ja pilkku eivät voi olla samassa luvussa</source>
        <translation>write 1234,50: a point and a comma cannot be in the same number</translation>
    </message>
    <message>
        <source>luvussa ei voi olla desimaaleja</source>
        <translation>the number cannot have decimals</translation>
    </message>
    <message>
        <source>luvussa voi olla enintään %1 desimaalia</source>
        <translation>the number can have %1 decimals at most</translation>
    </message>
    <message>
        <source>luku on kirjoitettava kuten 1234,50</source>
        <translation>a number is written as 1234,50</translation>
    </message>
    <message>
        <source>virheellinen arvo "%1": %2</source>
        <translation>invalid value "%1": %2</translation>
    </message>
    <message>
        <source>tekstissä on ohjausmerkki</source>
        <translation>the text has a control character</translation>
    </message>
    <message>
        <source>arvo on jokin näistä: %1</source>
        <translation>the value is one of these: %1</translation>
    </message>
    <message>
        <source>arvo on true tai false</source>
        <translation>the value is true or false</translation>
    </message>
    <message>
        <source>arvon on oltava kokonaisluku</source>
        <translation>the value must be a whole number</translation>
    </message>
    <message>
        <source>päivä on kirjoitettava kuten 31.3.2026 tai 2026-03-31</source>
        <translation>a date is written as 31.3.2026 or 2026-03-31</translation>
    </message>
    <message>
        <source>ajanjakso on kirjoitettava kuten 2026-03, 3/2026, 2026q1 tai 1.3.2026..31.3.2026</source>
        <translation>a period is written as 2026-03, 3/2026, 2026q1 or 1.3.2026..31.3.2026</translation>
    </message>
    <message>
        <source>jakso päättyy ennen kuin alkaa</source>
        <translation>the period ends before it begins</translation>
    </message>
    <message>
        <source>viitenumerossa on 3-19 numeroa ja tarkiste</source>
        <translation>a reference has 3-19 digits and a check digit</translation>
    </message>
    <message>
        <source>viitenumeron tarkiste on väärä; oikea olisi %1</source>
        <translation>the check digit of the reference is wrong; %1 would be right</translation>
    </message>
    <message>
        <source>kyllä</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>ei</source>
        <translation>no</translation>
    </message>
    <message>
        <source>kenttä puuttuu: %1</source>
        <translation>the field is missing: %1</translation>
    </message>
    <message>
        <source>Mitään ei muutettu: %1 %2</source>
        <translation>Nothing changed: %1 %2</translation>
    </message>
    <message>
        <source>numero on jo käytössä: %1</source>
        <translation>the number is taken: %1</translation>
    </message>
    <message>
        <source>rivi %1: %2</source>
        <translation>line %1: %2</translation>
    </message>
    <message>
        <source>Muutetaanko %1 tietuetta?</source>
        <translation>Change %1 records?</translation>
    </message>
    <message>
        <source>Lisätty %1, muutettu %2, ennallaan %3</source>
        <translation>Added %1, changed %2, unchanged %3</translation>
    </message>
    <message>
        <source>kaikki kentät, ei vain tavallisia</source>
        <translation>all fields, not the usual ones alone</translation>
    </message>
    <message>
        <source>CSV-tiedosto, jossa on otsikkorivi; - on vakiosyöte</source>
        <translation>CSV file with a title line; - is standard input</translation>
    </message>
    <message>
        <source>otsikon kenttä: OTSIKKO=KENTTÄ</source>
        <translation>field of a title: TITLE=FIELD</translation>
    </message>
    <message>
        <source>ohittaa sarakkeet, joita ohjelma ei tunne</source>
        <translation>skips columns that the program does not know</translation>
    </message>
    <message>
        <source>muuttaa tietueita, joiden numero on jo käytössä</source>
        <translation>changes records whose number is taken</translation>
    </message>
    <message>
        <source>teksti, jonka jokin kenttä sisältää; kirjainkoolla ei ole väliä</source>
        <translation>text that a field contains, letter case aside</translation>
    </message>
    <message>
        <source>koodia ei ole luettelossa</source>
        <translation>there is no such code in the list</translation>
    </message>
    <message>
        <source>käännetty verovelvollisuus</source>
        <translation>reverse charge</translation>
    </message>
    <message>
        <source>yhteisömyynti</source>
        <translation>intra-community supply</translation>
    </message>
    <message>
        <source>vientimyynti</source>
        <translation>export</translation>
    </message>
    <message>
        <source>veroton</source>
        <translation>exempt</translation>
    </message>
    <message>
        <source>veron ulkopuolella</source>
        <translation>outside the scope of VAT</translation>
    </message>
    <message>
        <source>nollavero</source>
        <translation>zero rate</translation>
    </message>
    <message>
        <source>laskujen numeroita ja välejä: 1001 1010-1020 1030-; - lukee lisää</source>
        <translation>numbers and ranges of invoices: 1001 1010-1020 1030-; - reads more</translation>
    </message>
    <message>
        <source>joilla on avointa</source>
        <translation>that have a balance</translation>
    </message>
    <message>
        <source>joilla ei ole avointa</source>
        <translation>that have no balance</translation>
    </message>
    <message>
        <source>joiden eräpäivä on mennyt</source>
        <translation>whose due date is over</translation>
    </message>
    <message>
        <source>jotka ovat tässä tilassa</source>
        <translation>that are in this state</translation>
    </message>
    <message>
        <source>asiakkaan laskut</source>
        <translation>invoices of a customer</translation>
    </message>
    <message>
        <source>laskun laji</source>
        <translation>type of the invoice</translation>
    </message>
    <message>
        <source>viitenumero</source>
        <translation>reference number</translation>
    </message>
    <message>
        <source>laskun päivä tai ajanjakso</source>
        <translation>date or period of the invoice</translation>
    </message>
    <message>
        <source>eräpäivä tai ajanjakso</source>
        <translation>due date or period</translation>
    </message>
    <message>
        <source>toimituspäivä tai ajanjakso</source>
        <translation>delivery date or period</translation>
    </message>
    <message>
        <source>avoimet ja maksetut sellaisina kuin ne olivat tänä päivänä</source>
        <translation>open and paid as they were on that day</translation>
    </message>
    <message>
        <source>teksti riveillä, asiakkaan nimessä tai viitteissä</source>
        <translation>text in rows, the customer's name or references</translation>
    </message>
    <message>
        <source>Pakkaamisen kirjasto puuttuu: %1</source>
        <translation>The library of archives is missing: %1</translation>
    </message>
    <message>
        <source>Suoritus on jo tallennettu</source>
        <translation>The payment has been saved before</translation>
    </message>
    <message>
        <source>Palautettavaa suoritusta ei löytynyt</source>
        <translation>No payment was found to take back</translation>
    </message>
    <message>
        <source>Viitenumerolla %1 on useita laskuja</source>
        <translation>Several invoices have the reference %1</translation>
    </message>
    <message>
        <source>Viitenumero puuttuu</source>
        <translation>The reference is missing</translation>
    </message>
    <message>
        <source>Laskua ei löytynyt viitenumerolla %1</source>
        <translation>No invoice has the reference %1</translation>
    </message>
    <message>
        <source>Suorituksen summa on nolla</source>
        <translation>The amount of the payment is zero</translation>
    </message>
    <message>
        <source>Laskun loppusumma on liian suuri</source>
        <translation>The invoice's total is too large</translation>
    </message>
    <message>
        <source>Tulostuspohja vaati liikaa muistia, aikaa tai sisäkkäisiä kutsuja</source>
        <translation>The layout asked for too much memory, time or depth of calls</translation>
    </message>
    <message>
        <source>Varmuuskopio tehdään vain SQLite-tietokannasta; käytä ohjelmaa pg_dump</source>
        <translation>Backups are made of SQLite databases only; use pg_dump</translation>
    </message>
    <message>
        <source>Rivin laskua %1 ei ole</source>
        <translation>There is no invoice %1 for the row</translation>
    </message>
    <message>
        <source>Suorituksen laskua %1 ei ole</source>
        <translation>There is no invoice %1 for the payment</translation>
    </message>
    <message>
        <source>Laskun asiakasta %1 ei ole</source>
        <translation>There is no customer %1 for the invoice</translation>
    </message>
    <message>
        <source>Laskunumero %1 on käytössä useammin kuin kerran</source>
        <translation>The invoice number %1 is used more than once</translation>
    </message>
    <message>
        <source>Sarake %1 puuttuu</source>
        <translation>Column %1 is missing</translation>
    </message>
    <message>
        <source>Tietokannan versio on %1</source>
        <translation>The database's version is %1</translation>
    </message>
    <message>
        <source>Asetusrivejä on %1, pitäisi olla yksi</source>
        <translation>There are %1 rows of settings, there should be one</translation>
    </message>
    <message>
        <source>Virheellinen viitenumero %1</source>
        <translation>Invalid reference number %1</translation>
    </message>
    <message>
        <source>Laskunumero %1 puuttuu</source>
        <translation>Invoice number %1 is missing</translation>
    </message>
    <message>
        <source>Laskunumerot %1-%2 puuttuvat</source>
        <translation>Invoice numbers %1-%2 are missing</translation>
    </message>
    <message>
        <source>Laskun %1 %2 on %3, pitäisi olla %4</source>
        <translation>Invoice %1: the %2 is %3, it should be %4</translation>
    </message>
    <message>
        <source>summa</source>
        <translation>total</translation>
    </message>
    <message>
        <source>saldo</source>
        <translation>balance</translation>
    </message>
    <message>
        <source> (korjattu)</source>
        <translation> (corrected)</translation>
    </message>
    <message>
        <source>PostgreSQL ei tallenna tekstiä, jossa on NUL-merkki</source>
        <translation>PostgreSQL does not store a text with a NUL character</translation>
    </message>
    <message>
        <source>Tietokantapalvelimen tai tietokannan nimi puuttuu</source>
        <translation>The server or the name of the database is missing</translation>
    </message>
    <message>
        <source>Tietokannan nimessä %1 voi olla vain pieniä kirjaimia a-z, numeroita ja alaviivoja</source>
        <translation>The name of the database %1 may have lower-case letters a-z, digits and underscores only</translation>
    </message>
    <message>
        <source>Tietokannan rakenne on vanha</source>
        <translation>The schema of the database is old</translation>
    </message>
    <message>
        <source>Tietokannan tiedostonimi puuttuu</source>
        <translation>The file name of the database is missing</translation>
    </message>
    <message>
        <source>Tietokantaa %1 ei voi avata: %2</source>
        <translation>Database %1 cannot be opened: %2</translation>
    </message>
    <message>
        <source>Tiedosto on jo olemassa: %1</source>
        <translation>The file exists already: %1</translation>
    </message>
    <message>
        <source>Tiedostoa %1 ei voi kirjoittaa: %2</source>
        <translation>File %1 cannot be written: %2</translation>
    </message>
    <message>
        <source>Tietokantaa %1 ei voi lukea: %2</source>
        <translation>Database %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>Tietokannan %1 rakenne on vanha</source>
        <translation>The schema of database %1 is old</translation>
    </message>
    <message>
        <source>Toinen ohjelma päivittää tietokantaa %1</source>
        <translation>Another program is upgrading database %1</translation>
    </message>
    <message>
        <source>liian pitkä osa</source>
        <translation>a part that is too long</translation>
    </message>
    <message>
        <source>tiedostossa on toinen asiakirja</source>
        <translation>there is another document in the file</translation>
    </message>
    <message>
        <source>liian monta sisäkkäistä elementtiä</source>
        <translation>too many nested elements</translation>
    </message>
    <message>
        <source>sarake %1: %2</source>
        <translation>column %1: %2</translation>
    </message>
    <message>
        <source>sarake %1 puuttuu</source>
        <translation>column %1 is missing</translation>
    </message>
    <message>
        <source>tiedoston loppu</source>
        <translation>end of the file</translation>
    </message>
    <message>
        <source>Tuntematon tiedostomuoto</source>
        <translation>Unknown file format</translation>
    </message>
    <message>
        <source>Invalid %1: %2</source>
        <translation>Invalid %1: %2</translation>
    </message>
    <message>
        <source>Tiedoston kirjoittaminen jäi kesken</source>
        <translation>Writing the file broke off</translation>
    </message>
    <message>
        <source>Tiedostoon ei voi kirjoittaa</source>
        <translation>The file cannot be written</translation>
    </message>
    <message>
        <source>Tulostuspohjan suoritus kesti yli %1 sekuntia</source>
        <translation>The layout ran for more than %1 seconds</translation>
    </message>
</context>
</TS>
