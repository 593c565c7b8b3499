#pragma once

#include <QJsonArray>

namespace lanterra {

/// The top engines as rows of the shape of sites.json, made of the engine file's own readable source, so that
/// the practice web and the engine file can't disagree. Three of them are sent a form, as their names tell.
QJsonArray EngineRows();

} // namespace lanterra
