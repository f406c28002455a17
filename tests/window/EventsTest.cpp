#include "window/StageTest.h"

#include <algorithm>

// Every event that a form handles can be brought about by a person.

namespace gatewise::test {

namespace {

using Events = StageTest;

constexpr std::pair<Event, const char*> kEvents[] = {
    {Event::Click, "Click"},
    {Event::DoubleClick, "DoubleClick"},
    {Event::Press, "Press"},
    {Event::Release, "Release"},
    {Event::RightPress, "RightPress"},
    {Event::Move, "Move"},
    {Event::Focus, "Focus"},
    {Event::Enter, "Enter"},
    {Event::Space, "Space"},
    {Event::Change, "Change"},
    {Event::Column, "Column"},
    {Event::Tick, "Tick"},
    {Event::Pick, "Pick"},
    {Event::Hover, "Hover"},
};

bool emits(const window::View& view, Event event) {
    const auto all = view.emits();
    return std::find(all.begin(), all.end(), event) != all.end();
}

} // namespace

TEST_F(Events, WhatAFormHandlesSomeViewBringsAbout) {
    int handled = 0;
    for (const Screen* screen : forms().all()) {
        for (const Control* control : screen->controls) {
            for (const auto& [event, name] : kEvents) {
                if (!control->handles(event)) continue;
                ++handled;
                if (control->kind == Kind::Timer) {
                    EXPECT_EQ(event, Event::Tick) << control->fullName();
                    continue;
                }
                const window::View* view = stage().desk().window(*screen).view(*control);
                ASSERT_NE(view, nullptr) << control->fullName();
                EXPECT_TRUE(emits(*view, event)) << control->fullName() << " handles " << name;
            }
        }
    }
    EXPECT_GT(handled, 300);
}

/// No event stands in a class's list that its control could never see there.
TEST_F(Events, OnlyListsWithColumnsHaveHeadsAndOnlyWhatHasAValueChanges) {
    for (const Screen* screen : forms().all()) {
        for (const window::View* view : stage().desk().window(*screen).views()) {
            if (view->control == nullptr) continue;
            const Kind kind = view->control->kind;
            EXPECT_EQ(emits(*view, Event::Column), kind == Kind::ListView) << view->control->fullName();
            const bool changes = kind == Kind::TextBox || kind == Kind::Slider || kind == Kind::UpDown ||
                                 kind == Kind::DriveList || kind == Kind::FolderList || kind == Kind::Option;
            EXPECT_EQ(emits(*view, Event::Change), changes) << view->control->fullName();
            EXPECT_FALSE(emits(*view, Event::Tick)) << view->control->fullName();
        }
    }
}

} // namespace gatewise::test
