#include "cli/request_preview.h"

#include "submission/entry_corrections.h"

using namespace Qt::StringLiterals;

namespace lanterra {

namespace {

ProjectRecord &Corrected(ProjectRecord &record) {
    TakeFaxFromPhone(record);
    CorrectEntries(record);
    return record;
}

} // namespace

RequestPreview::RequestPreview(Program &theProgram)
    : program(theProgram), values(Corrected(program.project.record)) {
    program.proxy.ApplyProxySettings();
}

PreviewedRequest RequestPreview::Of(int row) {
    const SiteRequest site = program.collector.RequestOfRow(row, values);
    PreviewedRequest preview;
    preview.name = site.name;
    const std::optional<TargetAddress> address = ParseTarget(RequestTarget(site), preview.problem);
    if (!address)
        return preview;
    preview.address = *address;
    preview.request = {IsPost(site.method) ? "POST" : "GET", RequestTarget(site),
                       SubmissionHeaders(site, address->HostName()), !Proxy().isEmpty() && !address->secure};
    return preview;
}

QString RequestPreview::Proxy() const {
    const HttpClient &client = program.channels.Channel(1).Client();
    const QString host = AsciiHost(client.ProxyServer().trimmed());
    return host.isEmpty()
               ? QString()
               : u"%1:%2"_s.arg(host.contains(u':') ? u'[' + host + u']' : host).arg(client.ProxyPort());
}

} // namespace lanterra
