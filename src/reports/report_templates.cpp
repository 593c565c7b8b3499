#include "reports/report_templates.h"

#include "support/file_names.h"
#include "support/text_file.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lanterra {

void ReportTemplates::Read(const QString &programFolder) {
    const QString folder = programFolder + u"Report"_s + QDir::separator();
    img_successful = PathToFileUrl(folder + u"Navysq.gif"_s);
    img_red_ball = PathToFileUrl(folder + u"Redsq.gif"_s);
    img_green_ball = PathToFileUrl(folder + u"Green_Ball182.gif"_s);
    img_arrow = PathToFileUrl(folder + u"Arrow6280.gif"_s);

    TemplateBottom = ReadFileText(folder + u"bottom.dat"_s);
    TemplateTop = ReadFileText(folder + u"top.dat"_s);
    TemplateLoopTop = ReadFileText(folder + u"loop_top.dat"_s);
    TemplateLoop = ReadFileText(folder + u"loop.dat"_s);
}

} // namespace lanterra
