#pragma once

#include "plan.h"

/// The proofs of the sample, one function a title.
namespace vexal::sample {

FilePlan lanternFox();
FilePlan mothCarnival();
FilePlan owlLetter();
FilePlan littleHarbor();
FilePlan bookmarks();
FilePlan skyOfKites();
FilePlan slowPost();
FilePlan moonGarden();
FilePlan tidepool();
FilePlan breadForTheGiant();
FilePlan lighthouseSongs();

/// Proofs that are still on their way: the next sync brings them.
FilePlan winterTram();
FilePlan mothCarnivalBase();

} // namespace vexal::sample
