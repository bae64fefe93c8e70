#include "api.h"
#include "filepicker.h"
#include "inbackground.h"
#include "photo.h"
#include "store.h"
#include "surroundings.h"

using namespace Qt::StringLiterals;

/// The person's own photo, from a file to the server.
namespace vexal {

void Store::changePhoto()
{
    if (!mayAct())
        return;
    const auto prepared = [this](const std::optional<QByteArray> &jpeg) { sendPhoto(jpeg); };
    const auto picked = [this, prepared](const QString &path) {
        inBackground(
            this, [path] { return profilePhoto(path); }, inThisSession(prepared));
    };
    m_world->picker.pick(u"Pick a photo for your profile."_s, photoPatterns(), this, inThisSession(picked));
}

void Store::sendPhoto(const std::optional<QByteArray> &jpeg)
{
    if (!jpeg)
        return showToast(u"That photo didn't open."_s);
    perform(u"photo"_s, u"Photo updated."_s,
            {.path = u"api/me/photo"_s, .method = "PUT", .raw = jpeg, .contentType = u"image/jpeg"_s});
}

} // namespace vexal
