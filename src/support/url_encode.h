#pragma once

#include <QString>
#include <QStringView>

namespace lanterra {

/// Form encoding as the stored templates expect it: the blank and the no-break space (160) become "+", and
/// each of % ! # $ ~ ^ & > ( ) + | ` = \ [ ] { } ; ' : " , ? / < becomes "%" and its code in two hexadecimal
/// capitals. All other characters pass, line breaks and those above 127 included.
QString UrlEncode(QStringView text);

} // namespace lanterra
