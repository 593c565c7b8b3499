#pragma once

#include "cli/request_preview.h"

namespace lanterra {

/// One line of shell that makes curl send the same request, byte for byte but for the name of the Host line,
/// which curl spells in its own way. `proxy` is "HOST:PORT", empty for none. Values that hold control
/// characters or bytes above 127 are quoted as $'...', which bash, zsh and ksh read; all others in single
/// quotes, which every shell reads.
QByteArray CurlCommand(const PreviewedRequest &preview, const QString &proxy);

} // namespace lanterra
