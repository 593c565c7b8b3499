#pragma once

#include "cli/outcome.h"
#include "shell/program.h"

#include <QList>

namespace lanterra {

class Console;

/// A field of a project, by the name of its control, and what to type into it.
struct FieldValue {
    QString name;
    QString value;
};

/// Reads words of the form FIELD=VALUE into `values`. Refuses an unknown field, naming all, and a check box
/// that is to be something other than 0 or 1.
Outcome ReadFieldValues(const QStringList &words, const ProjectRecord &record, QList<FieldValue> &values);

/// Types each value into its box and leaves it, so that an address gets its "http://" and a long text its
/// warning.
void EnterFieldValues(const QList<FieldValue> &values, Program &program, Console &console);

} // namespace lanterra
