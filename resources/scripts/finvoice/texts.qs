// ----------------------------------------------------------------------------------------------------------- Texts

// On one line, with a single blank for every run of blanks and control characters, and with none at the ends.
function clean(text) { return trimmed(text.replace(/[\s\u0000-\u0020\u007F-\u009F]+/g, " ")); }

function trimmed(text) { return text.replace(/^ +| +$/g, ""); }

function startsPair(text, position)
{
    var code = text.charCodeAt(position);
    return code >= 0xD800 && code <= 0xDBFF;
}

// Names and addresses are at least two characters long.
function isShort(text) { return text.length < 2 || text.length == 2 && startsPair(text, 0); }

// The lines of a name, none for an empty one.
function names(text) { return pieces([text !== "" && isShort(text) ? text + "." : text], NAME_LENGTH); }

function cut(text, length)
{
    if (text.length <= length)
        return text;
    return trimmed(text.substr(0, startsPair(text, length - 1) ? length - 1 : length));
}

// The lines, with those that are too long split into several.
function pieces(lines, length)
{
    var result = [];
    for (var i = 0; i < lines.length; i++) {
        var rest = lines[i];
        while (rest.length > length) {
            var end = splitPosition(rest, length);
            result.push(trimmed(rest.substr(0, end)));
            rest = trimmed(rest.substr(end));
        }
        if (rest !== "")
            result.push(rest);
    }
    return result;
}

// At the last blank of the second half, else inside the word.
function splitPosition(text, length)
{
    var last = Math.min(length, text.length - LEAST_REST);
    for (var i = last; i > length / 2; i--) {
        if (text.charAt(i) == " ")
            return i;
    }
    return startsPair(text, last - 1) ? last - 1 : last;
}
