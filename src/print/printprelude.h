#ifndef PRINTPRELUDE_H
#define PRINTPRELUDE_H

/**
 * The global functions and constants of print scripts. Scripts stored in databases rely on the text as it stands: that
 * lineHeight() returns nothing, that isTextClipping() takes an argument, that `l` is a global.
 */
constexpr char printPrelude[] = R"(function get(path) { return env.get(path); }
function formatCurrency(number) { return env.formatCurrency(number); }
function formatNumber(number, scale, minFractionDigits) { return env.formatNumber(number, scale, minFractionDigits); }
function formatDate(date, format) { return env.formatDate(date, format); }
function currentDate() { return env.currentDate(); }
function newPage() { env.newPage(); }
function drawLine(x1, y1, x2, y2) { env.drawLine(x1, y1, x2, y2); }
function drawRect(x, y, w, h) { env.drawRect(x, y, w, h); }
function fillRect(x, y, w, h) { env.fillRect(x, y, w, h); }
function drawText(x, y, w, h, s) { env.drawText(x, y, w, h, "left", s); }
function drawTextRight(x, y, w, h, s) { env.drawText(x, y, w, h, "right", s); }
function drawTextHCenter(x, y, w, h, s) { env.drawText(x, y, w, h, "hcenter", s); }
function drawTextVCenter(x, y, w, h, s) { env.drawText(x, y, w, h, "vcenter", s); }
function drawTextCenter(x, y, w, h, s) { env.drawText(x, y, w, h, "center", s); }
function drawImage(x, y, w, h, path) { env.drawImage(x, y, w, h, path); }
function drawBarcode128C(x, y, w, h, s) { env.drawBarcode128C(x, y, w, h, s); }
function rotate(angle) { env.rotate(angle); }
function setTextClipping(enabled) { env.setTextClipping(enabled); }
function isTextClipping(enabled) { return env.isTextClipping(); }
function setLineHeight(height) { env.setLineHeight(height); }
function lineHeight() { env.lineHeight(); }
function setLocale(locale) { env.setLocale(locale); }
function _rectObject(l) {
    var rect = new Object();
    rect.x = l[0] / 100.0;
    rect.y = l[1] / 100.0;
    rect.width = l[2] / 100.0;
    rect.height = l[3] / 100.0;
    return rect;
}
function boundingRect(x, y, w, h, s) { l = env.boundingRect(x, y, w, h, "left", s); return _rectObject(l); }
function boundingRectRight(x, y, w, h, s) { l = env.boundingRect(x, y, w, h, "right", s); return _rectObject(l); }
function boundingRectCenter(x, y, w, h, s) { l = env.boundingRect(x, y, w, h, "center", s); return _rectObject(l); }
function orientation() { return env.orientation(); }
function pageRect() { l = env.pageRect(); return _rectObject(l); }
function paperRect() { l = env.paperRect(); return _rectObject(l); }
function setBrush(color) { env.setBrush(color); }
function setFont(family, size, style) {
    if (style == undefined)
        style = "normal";
    env.setFont(family, size, style);
}
function setPen(color, width) {
    if (width == undefined)
        width = -1;
    env.setPen(color, width);
}
var AMOUNT_SCALE = 4;
var QUANTITY_SCALE = 4;
var PERCENTAGE_SCALE = 2;
)";

#endif
