// ---------------------------------------------------------------------------------------------------------- Letters

var fontSize; // of the current font, points

// One face serves for all: a second one, such as bold, would make a file a third larger and slower to write.
function font(size)
{
    fontSize = size;
    setFont(FONT, size);
}

// Whether a text fits on a line; most texts are too short to need measuring.
function fits(s, w)
{
    return s.length * fontSize * POINT * WIDEST_EM <= w || boundingRect(0, 0, w, 0, s).width <= w;
}

// The length of the longest start of a text that fits with something behind it, at least 1.
function fittingLength(s, w, end)
{
    var fitting = 1;
    var tooLong = s.length + 1;
    while (tooLong - fitting > 1) {
        var middle = Math.floor((fitting + tooLong) / 2);
        if (fits(s.substr(0, middle) + end, w))
            fitting = middle;
        else
            tooLong = middle;
    }
    return fitting;
}

// One line; a text that is too long ends with an ellipsis.
function drawFitted(x, y, w, s)
{
    if (!fits(s, w))
        s = s.substr(0, fittingLength(s, w, "…")) + "…";
    drawText(x, y, w, 0, s);
}

// A word wider than the line would run out of its box: it goes on on the next line, an e-mail address after its @.
function breakLongWords(s, w)
{
    return s.replace(/[^ \n]+/g, function (word) {
        var pieces = [];
        while (!fits(word, w)) {
            var length = fittingLength(word, w, "");
            length = word.lastIndexOf("@", length - 1) + 1 || length;
            pieces.push(word.substr(0, length));
            word = word.substr(length);
        }
        pieces.push(word);
        return pieces.join("\n");
    });
}

// A text broken into lines in the current font.
function wrap(s, w, pitch)
{
    var block = { text: s, width: w, pitch: pitch, lines: s === "" ? 0 : 1 };
    if (s.indexOf("\n") >= 0 || !fits(s, w)) {
        block.text = breakLongWords(s, w);
        block.lines = countLines(block.text, w, ENDLESS);
    }
    block.height = block.lines * pitch;
    return block;
}

// The lines of a text in a box, of which one more than given may be counted.
function countLines(s, w, most)
{
    setLineHeight(MEASURING_PITCH);
    return Math.floor(boundingRect(0, 0, w, Math.min(ENDLESS, most * MEASURING_PITCH), s).height / MEASURING_PITCH) + 1;
}

// Leaves the first lines in a block, in the font it was made in, and returns a block with the rest.
function cutBlock(block, lines)
{
    if (block.lines <= lines)
        return wrap("", block.width, block.pitch);
    var text = block.text;
    var end = 0;
    var tooLong = text.length;
    while (tooLong - end > 1) {
        var middle = Math.floor((end + tooLong) / 2);
        if (countLines(text.substr(0, middle), block.width, lines) <= lines)
            end = middle;
        else
            tooLong = middle;
    }
    end = Math.max(text.lastIndexOf(" ", end), text.lastIndexOf("\n", end));
    block.text = text.substr(0, end).replace(/[ \n]+$/, "");
    block.lines = countLines(block.text, block.width, lines);
    block.height = block.lines * block.pitch;
    return wrap(text.substr(end).replace(/^[ \n]+/, ""), block.width, block.pitch);
}

function drawBlock(x, y, block)
{
    if (block.lines == 1 && block.text.indexOf("\n") < 0) {
        drawText(x, y, block.width, 0, block.text);
    } else if (block.lines > 0) {
        setLineHeight(block.pitch);
        drawText(x, y, block.width, block.height - block.pitch / 2, block.text);
    }
}

function shortenBlock(block, height)
{
    block.lines = Math.max(0, Math.min(block.lines, wholeLines(height, block.pitch)));
    block.height = block.lines * block.pitch;
}
