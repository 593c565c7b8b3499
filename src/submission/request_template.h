#pragma once

#include "project/project_record.h"

#include <QString>
#include <functional>
#include <vector>

namespace lanterra {

/// Expands the templates of sites for one project.
///
/// A template is literal pieces in double quotes joined to placeholder words by " & ". A word stands between
/// two literals, or at the very end:
///
///     "url=" & txtUrlText & "&mail=" & txtEmailText
///
/// It only looks like an expression: expanding is plain replacement of text, ignoring case, in a fixed order.
/// An unknown word stays in the text, and a template without quotes comes through unchanged.
class RequestTemplate {
public:
    /// Encodes the values of the project once, for all templates that follow.
    explicit RequestTemplate(const ProjectRecord &record);

    /// The text of one request. `category` is called once for each shape in which the template asks for the
    /// site's category, and returns it encoded.
    QString Expand(QString query, const std::function<QString()> &category) const;

    /// The encoded value of a placeholder word, empty for an unknown one.
    QString Value(QStringView word) const;

private:
    struct Word {
        QString name;
        QString value;
    };

    std::vector<Word> words; ///< in the order of replacement
};

} // namespace lanterra
