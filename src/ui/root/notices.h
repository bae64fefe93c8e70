#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vexal {

/// Somebody's work that goes out with the program, or that it cannot run without, and on which terms.
class Notice
{
    Q_GADGET
    QML_VALUE_TYPE(notice)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString licence MEMBER licence FINAL)
    Q_PROPERTY(QString holder MEMBER holder FINAL)

public:
    QString name;
    QString licence;
    QString holder; ///< "2016–2022 The Inter Project Authors"
};

/// All of them, what people see before what works unseen.
QList<Notice> notices();

/// What the program says of itself.
class Imprint : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString version READ version CONSTANT FINAL)
    Q_PROPERTY(int count READ count CONSTANT FINAL)

public:
    /// "Version 1.2.0 (build 7)"
    static QString version();
    static int count() { return int(notices().size()); }
    Q_INVOKABLE static vexal::Notice notice(int index) { return notices().value(index); }
};

} // namespace vexal
