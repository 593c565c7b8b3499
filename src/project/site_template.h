#pragma once

#include <QString>
#include <QStringList>

namespace lanterra {

/// The placeholder words of the template language, in the order in which they are replaced, the category's
/// word first.
QStringList TemplateWords();

/// Why a text is no template of a request, one sentence; empty if it is one. The language, in which the
/// pieces and blanks are exact and words ignore case:
///
///     template = literal { " & " literal | " & " word " & " literal } [ " & " word ]
///     literal  = quote { any character but quote and control characters } quote
///     word     = one of TemplateWords()
///
/// where the blank, ampersand, blank between two pieces stands outside the quotes. A literal can't begin with
/// those three characters itself, since the plain replacement that expands a template would take its quote
/// for the end of a piece.
QString TemplateRefusal(const QString &text);

/// Whether a template asks for the category that was chosen for the site.
bool AsksForCategory(const QString &text);

} // namespace lanterra
