#include "window/Layout.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <tuple>

namespace gatewise::window {

namespace {

std::string text(const QJsonValue& value) {
    return value.toString().toStdString();
}

QColor color(const QJsonValue& value) {
    return value.isString() ? QColor(value.toString()) : QColor();
}

QRect box(const QJsonObject& o) {
    return {o["x"].toInt(), o["y"].toInt(), o["w"].toInt(), o["h"].toInt()};
}

FontRole fontRole(const QJsonObject& o) {
    FontRole role;
    role.family = o["family"].toString();
    const QString weight = o["weight"].toString();
    role.weight = weight == "bold" ? 700 : weight == "medium" ? 500 : 400;
    role.size = o["size"].toDouble(12);
    role.line = o["line"].toDouble(role.size * 1.25);
    return role;
}

ControlLayout plainControl(const QJsonObject& o) {
    ControlLayout c;
    c.name = text(o["name"]);
    c.kind = text(o["kind"]);
    c.container = text(o["in"]);
    c.box = box(o);
    c.font = text(o["font"]);
    c.color = color(o["color"]);
    c.back = color(o["back"]);
    c.border = color(o["border"]);
    c.disabled = color(o["disabled"]);
    c.highlight = color(o["highlight"]);
    const QString align = o["align"].toString();
    c.align = align == "center" ? Qt::AlignHCenter : align == "right" ? Qt::AlignRight : Qt::AlignLeft;
    c.top = o["valign"].toString() == "top";
    c.wrap = o["wrap"].toBool();
    c.lines = o["lines"].toInt();
    const QString ellipsis = o["ellipsis"].toString();
    c.ellipsis = ellipsis == "left" ? Ellipsis::Left : ellipsis == "right" ? Ellipsis::Right : Ellipsis::None;
    c.hit = o["hit"].toBool();
    c.over = o["over"].toBool();
    c.multiline = o["multiline"].toBool();
    c.tab = o["tab"].toInt();
    c.text = text(o["text"]);
    c.says = o["says"].toString();
    c.table = o["table"].toString();
    c.blinks = o["blinks"].toBool();
    c.quiet = o["quiet"].toBool();
    return c;
}

using FamilyKey = std::tuple<std::string, int, int, int>; // container, top, pitch, number of lines

/// The members of one entry: itself, or the elements of its control array.
void addControls(ScreenLayout& screen, const QJsonObject& o, std::map<FamilyKey, int>& families) {
    const ControlLayout first = plainControl(o);
    const QJsonValue index = o["index"];
    if (!index.isArray()) {
        screen.controls.push_back(first);
        screen.controls.back().index = index.toInt(-1);
        return;
    }
    const int from = index.toArray().at(0).toInt();
    const int to = index.toArray().at(1).toInt();
    const QPoint pitch(o["pitch"].toArray().at(0).toInt(), o["pitch"].toArray().at(1).toInt());
    int family = 0;
    if (pitch.y() != 0) {
        const FamilyKey key{first.container, first.box.top() / pitch.y(), pitch.y(), to - from};
        family = families.try_emplace(key, static_cast<int>(families.size()) + 1).first->second;
    }
    for (int i = from; i <= to; ++i) {
        ControlLayout element = first;
        element.index = i;
        element.box.translate(pitch * (i - from));
        element.family = family;
        element.row = i - from;
        screen.controls.push_back(std::move(element));
    }
}

ScreenLayout screenLayout(const QJsonObject& o) {
    ScreenLayout screen;
    screen.size = {o["width"].toInt(), o["height"].toInt()};
    std::map<std::string, std::string> composites;
    const QJsonObject containers = o["containers"].toObject();
    for (auto it = containers.begin(); it != containers.end(); ++it) {
        const QJsonObject container = it.value().toObject();
        screen.containers[it.key().toStdString()] = {box(container), text(container["background"])};
    }
    std::map<FamilyKey, int> families;
    const QJsonArray controls = o["controls"].toArray();
    for (const auto& entry : controls) addControls(screen, entry.toObject(), families);
    for (const auto& control : screen.controls) {
        if (control.kind == "FlightInfo") composites[control.name] = control.name + ".";
    }
    for (auto& control : screen.controls) {
        const auto composite = composites.find(control.container);
        if (composite != composites.end()) control.name = composite->second + control.name;
    }
    return screen;
}

} // namespace

Layout Layout::fromJson(const QByteArray& json) {
    Layout layout;
    const QJsonObject root = QJsonDocument::fromJson(json).object();
    const QJsonObject fonts = root["fonts"].toObject();
    for (auto it = fonts.begin(); it != fonts.end(); ++it) {
        layout.fonts[it.key().toStdString()] = fontRole(it.value().toObject());
    }
    const QJsonObject styles = root["styles"].toObject();
    for (auto it = styles.begin(); it != styles.end(); ++it) {
        const QJsonObject group = it.value().toObject();
        for (auto entry = group.begin(); entry != group.end(); ++entry) {
            if (entry.value().isString()) {
                layout.styles[(it.key() + "." + entry.key()).toStdString()] = color(entry.value());
            }
        }
    }
    const QJsonObject screens = root["screens"].toObject();
    for (auto it = screens.begin(); it != screens.end(); ++it) {
        layout.screens[it.key().toStdString()] = screenLayout(it.value().toObject());
    }
    return layout;
}

QColor Layout::style(const std::string& key) const {
    const auto at = styles.find(key);
    return at == styles.end() ? QColor() : at->second;
}

const FontRole& Layout::role(const std::string& name) const {
    static const FontRole plain;
    const auto at = fonts.find(name);
    return at == fonts.end() ? plain : at->second;
}

} // namespace gatewise::window
