#pragma once

#include <QObject>

namespace lanterra {

/// One function a kind of control. Each joins the control to the widget or action if both are of its kind,
/// and says whether they are. Each connection ends with either of its sides, so either may go first.

bool JoinCombo(QObject &control, QObject &face); ///< ComboBox and QComboBox
bool JoinText(QObject &control, QObject &face);  ///< TextBox and QLineEdit or QPlainTextEdit
bool JoinCheck(QObject &control, QObject &face); ///< CheckBox and a checkable button or action
bool JoinLabel(QObject &control, QObject &face); ///< Label and QLabel or action
bool JoinButton(QObject &control, QObject &face);
bool JoinList(QObject &control, QObject &face);   ///< any list or table model and a view
bool JoinScroll(QObject &control, QObject &face); ///< ScrollBar and QAbstractSlider
bool JoinPlain(QObject &control, QObject &face);  ///< a Control without a value

} // namespace lanterra
