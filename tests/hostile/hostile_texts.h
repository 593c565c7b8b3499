#pragma once

#include <QStringList>

namespace lanterra {

/// Texts that break careless programs, each shorter than any field: controls, halves of surrogate pairs,
/// characters that storage and code page can't hold, and what looks like markup, a format, a path, a query or
/// a template.
inline QStringList HostileTexts() {
    using namespace Qt::StringLiterals;
    return {
        u"nul \0 inside"_s,
        u"lines\r\nX-Evil: 1\n\r\n<b>body</b>"_s,
        u"tab\tbell\a escape \x1B[2J delete\x7F next\x85 csi\x9B"_s,
        u"\xD83D first half, in front"_s,
        u"halves \xD83Dq\xDE00q \xDE00\xD83D"_s,
        u"\xDE00 and first half at the end \xD83D"_s,
        u"\xFEFF mark in front"_s,
        u"\xFFFE no character \xFFFF at all"_s,
        u"right \u202Eto left\u2066 \u200Fmark \u2028line"_s,
        u"caf\u00E9 \u20AC \u65E5\u672C \u0416 \U0001F600 e\u0301"_s,
        u"<script>alert(1)</script><!-- &lt; \"onload=' "_s,
        u"%s %n %1 %2 %L1 %41 %00 %"_s,
        u"{URL} {SITE} {{url}} ${HOME} $(id) `id`"_s,
        u"\" & txtEmailText & \""_s,
        u"'; DROP TABLE Data; --"_s,
        u"../../../outside"_s,
        u"..\\..\\outside"_s,
        u"/outside:file|*?"_s,
    };
}

} // namespace lanterra
