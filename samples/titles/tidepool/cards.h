#pragma once

#include "creatures.h"
#include "sheet.h"

/// The cards of the tide pool.
namespace vexal::sample::tide {

/// A card's motif: in the deck once by day and once by night.
struct Motif
{
    QString name;
    Creature paint;
    Skin skin;
    QColor water; ///< By day.
};

QList<Motif> motifs();

/// The creature alone, as a card shows it.
Art creature(const Motif &motif, bool night);
/// A card of the deck: the creature in its pool by day or by night.
Sheet motifCard(const Motif &motif, bool night, int number);
Sheet backOfCard();
Sheet rules();

} // namespace vexal::sample::tide
