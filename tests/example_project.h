#pragma once

#include "project/project_record.h"
#include "support/text_file.h"

namespace lanterra {

/// Types the example project, data/example_project.txt, into the boxes.
inline void FillInExample(ProjectRecord &record, const QString &path) {
    for (const QString &line : ReadFileText(path).split(u'\n')) {
        for (const ProjectRecord::TextField &field : record.TextFields()) {
            if (line.section(u'=', 0, 0) == field.name)
                field.box->SetText(line.section(u'=', 1));
        }
    }
}

} // namespace lanterra
