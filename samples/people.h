#pragma once

#include <QString>

/// E-mail addresses of the people of the sample board. Lin is signed in.
namespace vexal::sample::who {

QString lin();
QString mira();
QString teo();
QString anselm();

} // namespace vexal::sample::who
