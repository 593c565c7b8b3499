#pragma once

#include "project/multi_url_table.h"

#include <QDateTime>
#include <QStringList>

namespace lanterra {

/// The page that links the reports of a job over several URLs, with CR LF behind each line.
///
/// It stands in the resource multi_index.txt: {NAME} is replaced by a value, unescaped, and the line behind
/// "@ " is written once for each slot from 0 to `upperSlot`. `reportFiles` are those of the runs in their
/// order, and the links are counted by them while the texts are counted by slots: behind a slot that the job
/// skipped, a link belongs to the text of the line after it. The last lines then lead nowhere. Kept, as the
/// page has always been written so.
QString MultiIndexPage(const MultiUrlTable &urls, int upperSlot, const QStringList &reportFiles,
                       const QDateTime &now);

} // namespace lanterra
