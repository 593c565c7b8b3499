#pragma once

#include "platform/request_text.h"
#include "shell/program.h"

namespace lanterra {

/// A request as a channel would send it.
struct PreviewedRequest {
    QString name; ///< of the site
    TargetAddress address;
    Request request;
    QString problem; ///< why it could not be sent, a sentence without a full stop; empty if it could

    QByteArray Bytes() const { return RequestText(request, address); }
};

/// Makes the requests of the open project without sending them, out of the pieces that a run uses. Nothing is
/// stored, but the entries of the project are put right in their boxes as a run does it.
class RequestPreview {
public:
    /// The program must outlive this.
    explicit RequestPreview(Program &theProgram);

    /// The request of the site at this position of List1, selected or not.
    PreviewedRequest Of(int row);

    /// The proxy that the channels would use, "HOST:PORT"; empty for none.
    QString Proxy() const;

private:
    Program &program;
    RequestTemplate values;
};

} // namespace lanterra
