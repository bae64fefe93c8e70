#include "filelinks.h"

#include "derived.h"
#include "facts.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

QString linkOf(const FileItem &file, const QString &role)
{
    const Ref *ref = ourFile(file, role);
    return ref ? ref->link.value_or(QString()) : QString();
}

} // namespace

QList<FileLink> fileLinks(const FileItem &file)
{
    const Links links = file.links.value_or(Links());
    return {{u"Email"_s, u"envelope"_s, links.gmail.value_or(QString())},
            {isolated(supplierName(file)) + u" file"_s, u"doc"_s, links.drive.value_or(QString())},
            {u"PO folder"_s, u"folder"_s, links.drive_folder.value_or(QString())},
            {u"InDesign"_s, u"pencil.and.ruler"_s, links.indd.value_or(QString())},
            {u"What we sent"_s, u"arrow.up.doc"_s, linkOf(file, u"submitted"_s)},
            {u"Last print"_s, u"book.closed"_s, linkOf(file, u"latest"_s)}};
}

} // namespace vexal
