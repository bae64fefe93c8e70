#include "filing.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

QString inDrive(const QString &kind, const QString &code)
{
    return u"https://drive.example/"_s + kind + u'/' + code;
}

Ref ours(const QString &role, const QString &name, const QString &code, const QString &note)
{
    Ref ref;
    ref.role = role;
    ref.name = name;
    ref.link = inDrive(u"file"_s, code);
    if (!note.isEmpty())
        ref.note = note;
    return ref;
}

} // namespace

Links filed(const QString &code, const QString &folder, const QString &indesign)
{
    Links links;
    links.gmail = u"https://mail.example/message/"_s + code;
    links.drive = inDrive(u"file"_s, code);
    links.drive_folder = inDrive(u"folder"_s, folder);
    if (!indesign.isEmpty()) {
        links.indd = inDrive(u"file"_s, code + u"-indd"_s);
        links.indd_name = indesign;
    }
    return links;
}

Ref sent(const QString &name, const QString &code, const QString &note)
{
    return ours(u"submitted"_s, name, code, note);
}

Ref printed(const QString &name, const QString &code, const QString &note)
{
    return ours(u"latest"_s, name, code, note);
}

Note note(const QString &id, std::optional<qint64> page, const QString &by, double at, const QString &text)
{
    Note out;
    out.id = id;
    out.page = page;
    out.by = by;
    out.at = at;
    out.text = text;
    return out;
}

} // namespace vexal::sample
