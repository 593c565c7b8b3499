#pragma once

#include "ports/document_opener.h"

#include <vector>

namespace lanterra {

/// Records what would have been opened and gives `result`.
class FakeDocumentOpener final : public DocumentOpener {
public:
    OpenResult OpenWithDefault(const QString &document) override {
        opened.push_back({QString(), {document}});
        return result;
    }
    OpenResult Start(const QString &program, const QStringList &arguments) override {
        opened.push_back({program, arguments});
        return result;
    }

    struct Call {
        QString program; ///< empty for the desktop's application
        QStringList arguments;
    };
    std::vector<Call> opened;
    OpenResult result = OpenResult::Opened;
};

} // namespace lanterra
