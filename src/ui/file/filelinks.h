#pragma once

#include "board.h"

#include <QtQml/qqmlregistration.h>

#include <QObject>

namespace vexal {

/// A way from a file to something outside.
class FileLink
{
    Q_GADGET
    QML_VALUE_TYPE(fileLink)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QString url MEMBER url FINAL)

public:
    QString title;
    QString symbol;
    QString url; ///< Empty where nothing was found.
    bool operator==(const FileLink &) const = default;
};

/// The six links of a file, always the same in the same order: mail, their file, folder, our document, what we sent,
/// the last print.
QList<FileLink> fileLinks(const FileItem &file);

} // namespace vexal
