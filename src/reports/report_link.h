#pragma once

#include <QString>

namespace lanterra {

/// A "file:///" link to a local page, as it stands in a report: nothing is escaped but what the code page of
/// the report can't hold, which is percent-encoded as UTF-8.
QString ReportLink(const QString &path);

/// The path of a folder as it stands behind "file:///": with forward slashes and without one at either end.
QString ReportFolderPath(const QString &folder);

} // namespace lanterra
