#pragma once

#include "reportcontent.h"

namespace vexal::local {

/// The report as a PDF: a cover, then each page of each file, small, with its findings and notes. \a goOn is asked
/// before each page of a file, with its number from 1; when it says false the report is given up and nothing answered.
/// Needs a QGuiApplication, and may run on any thread.
QByteArray reportPdf(const ReportContent &content, const std::function<bool(int page)> &goOn);

} // namespace vexal::local
