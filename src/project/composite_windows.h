#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/labels.h"
#include "project/member_rows.h"
#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane {

// A composite window has a main drawing and members, each a window type with labels and a count of its own.
// While it is under edit all of their labels are rows of 标注2 with the MCBN kMembersUnderEdit; a save gives
// the members' rows the number of the window and moves those of the main drawing to 标注. Every routine
// throws StoreError when the store refuses a statement; each change is one command.

/// A node of the tree of members.
struct CompositeMember {
    std::string name;  ///< CMC, ended by a number that tells members of one type apart
    std::string tag;   ///< CBN: the window type's number, or minus the number of the main drawing

    friend bool operator==(const CompositeMember&, const CompositeMember&) = default;
};

/// True for the node of the main drawing.
bool IsMainDrawing(const CompositeMember& member);

/// What the name of the next member ends in: one more than the highest number that the last two characters of
/// the names give, "10" at first. Behind 99 it is "100" again and again.
std::string NextMemberSuffix(std::span<const CompositeMember> members);

/// The rows of a new member: its labels, a count of 1.
void AddMemberRows(Connection& connection, const CompositeMember& member, std::span<const LabelRow> labels);

/// Deletes the rows of all members of that tag, whatever their names.
void RemoveMemberRows(Connection& connection, std::string_view tag);

/// Deletes the rows of the main drawing, whichever it is.
void RemoveMainRows(Connection& connection);

/// The nodes of the composite with that MCBN, by type and name, the main drawing first.
std::vector<CompositeMember> ListMembers(Connection& connection, std::string_view mcbn);

/// The labels of one of its members.
std::vector<LabelRow> LoadMemberRows(Connection& connection, const CompositeMember& member,
                                     std::string_view mcbn = kMembersUnderEdit);

/// How many of a member one composite has, as far as it has been stored; "1" otherwise, and for the main
/// drawing.
std::string LoadMemberCount(Connection& connection, const CompositeMember& member,
                            std::string_view mcbn = kMembersUnderEdit);

/// Replaces the rows of a member under edit; without labels they stay as they are. A count that is no number
/// is refused after the rows before have been deleted.
void StoreMemberRows(Connection& connection, const CompositeMember& member, std::span<const LabelRow> labels,
                     const std::string& count);

/// Puts a stored composite under edit: copies its rows and returns its nodes, the main drawing first. What
/// was under edit before is dropped.
std::vector<CompositeMember> OpenComposite(Connection& connection, const WindowEntry& window);

/// Saves what is under edit as `window`, whose `typeNumber` is minus the number of the main drawing. An empty
/// `number` is replaced by the next one. A refusal leaves the rows under edit, and the number with the
/// window, so that the next save replaces what this one has written; the StoreError says what is stored now.
void SaveComposite(Connection& connection, WindowEntry& window);

}  // namespace kalvane
