#pragma once

#include <QString>

namespace lanterra {

/// The desktop's clipboard. A step that fails does nothing and tells nobody.
class Clipboard {
public:
    virtual ~Clipboard() = default;

    virtual void Clear() = 0;

    /// Puts a plain text in the place of what is there. Lines end in LF.
    virtual void SetText(const QString &text) = 0;
};

} // namespace lanterra
