#pragma once

#include "forms/Control.h"

namespace gatewise::drive {

/// The kinds of controls that a C++ class stands for.
inline bool isKind(const Control& c, const Label*) {
    return c.kind == Kind::Label;
}
inline bool isKind(const Control& c, const Frame*) {
    return c.kind == Kind::Frame;
}
inline bool isKind(const Control& c, const TextBox*) {
    return c.kind == Kind::TextBox;
}
inline bool isKind(const Control& c, const Check*) {
    return c.kind == Kind::Check;
}
inline bool isKind(const Control& c, const Option*) {
    return c.kind == Kind::Option;
}
inline bool isKind(const Control& c, const ListView*) {
    return c.kind == Kind::ListView;
}
inline bool isKind(const Control& c, const Chart*) {
    return c.kind == Kind::Chart;
}
inline bool isKind(const Control& c, const Timer*) {
    return c.kind == Kind::Timer;
}
inline bool isKind(const Control& c, const RangeControl*) {
    return c.kind == Kind::Slider || c.kind == Kind::UpDown;
}
inline bool isKind(const Control& c, const PathList*) {
    return c.kind == Kind::DriveList || c.kind == Kind::FolderList || c.kind == Kind::FileList;
}
inline bool isKind(const Control& c, const ItemControl*) {
    return c.kind == Kind::Combo || c.kind == Kind::ListBox ||
           isKind(c, static_cast<const PathList*>(nullptr));
}

/// The control as one of these classes; null when it is another or none.
template<class T> T* controlAs(Control* control) {
    if (control == nullptr || !isKind(*control, static_cast<const T*>(nullptr))) return nullptr;
    return static_cast<T*>(control);
}

} // namespace gatewise::drive
