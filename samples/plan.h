#pragma once

#include "board.h"
#include "sheet.h"

namespace vexal::sample {

/// A moment of November 2026, in milliseconds since 1970-01-01 00:00 UTC.
constexpr double moment(int day, int hour, int minute)
{
    return (1793491200.0 + (((day - 1) * 24 + hour) * 60 + minute) * 60) * 1000;
}

/// Who judged a finding, how and when.
struct Verdict
{
    QString state = QStringLiteral("open");
    QString by;
    double at = 0;
};

/// One difference of two pages: how it is made, where it lies and how the checks put it. Without a kind it is a
/// difference that no check names.
struct Change
{
    QString kind;
    QString severity;
    QString title;
    QString detail = {}; ///< This and the two below are left out of the finding where they are empty.
    QString before = {};
    QString after = {};
    QStringList on = {};   ///< What it is called on the proof: its box, then the further boxes.
    QStringList ours = {}; ///< What it is called on our page, where that is another name.
    std::function<void(Sheet &)> make = {};
    Verdict verdict = {};
};

/// One page of a proof, told from our page.
struct Leaf
{
    QString label = {};
    Sheet ours;
    QList<Change> changes = {}; ///< What the supplier did to it.
    QList<Change> edits = {};   ///< What takes our page back to the last print: edits of ours that came through.
    bool sent = true;           ///< What we sent has this page.
    bool printed = false;       ///< The last print has it.
    bool read = false;          ///< Its text was read from the picture.
    bool flat = false;          ///< It has few and flat colours, so its pictures are kept without loss.
};

/// One proof file, told before it is printed: what the checks count and the pictures are added by the press.
struct FilePlan
{
    FileItem file;
    QList<Leaf> leaves;
    QList<Note> notes;
    QRectF cover = {};    ///< What the file's thumbnail shows of the first page, in pixels; all of it unless valid.
    bool scanned = false; ///< It came from a scanner: askew and grainy.
};

} // namespace vexal::sample
