#pragma once

#include <QVariant>

namespace lanterra {

/// The form in which a value is bound to a field. SQLite keeps text as UTF-8 and changes what has no place
/// there: half of a surrogate pair (the next character goes with it), U+FFFE, U+FFFF, and a byte order mark
/// at the front. A text that holds one of these is bound as a blob, in UTF-16 behind a byte order mark; any
/// other value as it is.
QVariant StoredForm(const QVariant &value);

/// The value of a field, a text in either form as the text it was.
QVariant FromStoredForm(const QVariant &value);

} // namespace lanterra
