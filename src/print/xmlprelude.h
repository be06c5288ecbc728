#ifndef XMLPRELUDE_H
#define XMLPRELUDE_H

/** The global functions and constants of XML scripts. */
constexpr char xmlPrelude[] = R"(function get(path) { return env.get(path); }
function formatCurrency(number) { return env.formatCurrency(number); }
function formatNumber(number, scale, minFractionDigits) { return env.formatNumber(number, scale, minFractionDigits); }
function formatDate(date, format) { return env.formatDate(date, format); }
function currentDate() { return env.currentDate(); }
function doctype(doctype) { env.doctype(doctype); }
function startElement(name) { env.startElement(name); }
function endElement(name) { env.endElement(name); }
function textElement(name, text) { env.textElement(name, text); }
function attribute(name, value) { env.attribute(name, value); }
function characters(text) { env.characters(text); }
function comment(text) { env.comment(text); }
function processingInstruction(target, data) { env.processingInstruction(target, data); }
var AMOUNT_SCALE = 4;
var QUANTITY_SCALE = 4;
var PERCENTAGE_SCALE = 2;
)";

#endif
