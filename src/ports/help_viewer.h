#pragma once

#include <QString>

namespace lanterra {

/// Shows the program's help.
class HelpViewer {
public:
    virtual ~HelpViewer() = default;

    /// Shows the index of a help file. Returns why that failed, as a sentence for the user; empty if it is
    /// shown. May block while events go on.
    virtual QString ShowIndex(const QString &helpFile) = 0;
};

} // namespace lanterra
