// SPDX-FileCopyrightText: 2026 The planner authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

#include <string_view>

class QAction;
class QToolBar;

namespace planner {

/// A command of a toolbar.
struct ToolCommand {
    int position; // counted from 1 with the separators
    QString name; // of the action
    std::string_view caption;
    std::string_view picture;
    std::string_view keys; // empty for none
};

/// The look that the program's toolbars share: pictures with their captions below.
void setUpToolBar(QToolBar& bar);

/// Makes the pictures as large as the bar's font asks for, or as small as the captions below them require to
/// fit into `height` pixels.
void fitPictures(QToolBar& bar, int height);

/// Makes the bar's letters those of its window, or as small as all commands need to be in sight in the room.
void fitLetters(QToolBar& bar, QSize room);

/// Adds a button, reached by Tab too, whose tool tip tells its keys, and a separator before it where its
/// position leaves one out. Whether the keys work everywhere in the
/// window is the caller's to say.
QAction* addToolCommand(QToolBar& bar, const ToolCommand& command);

} // namespace planner
