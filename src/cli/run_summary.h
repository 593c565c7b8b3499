#pragma once

#include "shell/program.h"

#include <QJsonDocument>

namespace lanterra {

/// What the last run came to, for a person: the counts, each selected site that did not succeed with its
/// reason, and the path of the report.
QStringList RunSummaryLines(const Program &program);

/// The same with every site of the list, as one JSON object.
QJsonDocument RunSummaryJson(const Program &program);

} // namespace lanterra
