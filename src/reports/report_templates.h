#pragma once

#include <QString>

namespace lanterra {

/// What the report of the top engines is made of: pieces of HTML with placeholders in brackets, and the
/// addresses of its images. They are read once, at the start of the program, from the folder "Report".
struct ReportTemplates {
    /// `programFolder` ends in a separator. A missing file leaves its text empty; the images are not opened.
    void Read(const QString &programFolder);

    QString img_successful; ///< of an engine that took the page
    QString img_red_ball;   ///< of one that failed
    QString img_green_ball;
    QString img_arrow;

    QString TemplateBottom;
    QString TemplateTop;
    QString TemplateLoopTop; ///< head of the table of engines
    QString TemplateLoop;    ///< one row of it
};

} // namespace lanterra
