/// @file
/// What a view of rows asks of its control and reports to it. The list and the report answer alike, so that
/// mouse, keys, scroll bars and assistive technology are written once, in QtRowView.
#pragma once

#include <cstdint>

#include "vapp/text/CStringU.h"
#include "vapp/toolkit/BasicTypes.h"
#include "vapp/toolkit/CPoint.h"
#include "vapp/toolkit/CSize.h"
#include "vapp/toolkit/InputTypes.h"
#include "vapp/toolkit/RowSelection.h"

namespace vapp_qt {

class QtRowControl {
public:
    QtRowControl() = default;
    QtRowControl(const QtRowControl&) = delete;
    QtRowControl& operator=(const QtRowControl&) = delete;
    virtual ~QtRowControl() = default;

    [[nodiscard]] virtual int RowCount() const = 0;
    [[nodiscard]] virtual int RowHeight() const = 0;
    [[nodiscard]] virtual int HeaderHeight() const = 0;
    [[nodiscard]] virtual int PageRows() const = 0;
    [[nodiscard]] virtual int TopRow() const = 0;
    [[nodiscard]] virtual int ScrollX() const = 0;
    /// Width of all that scrolls sideways, in pixels; 0 if nothing does.
    [[nodiscard]] virtual int ContentWidth() const = 0;
    [[nodiscard]] virtual int FocusedRow() const = 0;
    [[nodiscard]] virtual const RowSelection& Selection() const = 0;
    /// The whole window, and the client area in it.
    [[nodiscard]] virtual CSize WindowSize() const = 0;
    [[nodiscard]] virtual CSize ClientSize() const = 0;

    /// The heights that the font asks for.
    virtual void SetHeights(int row, int header) = 0;
    virtual void Reserve(CSize bars) = 0;
    virtual void Click(int row, TModifiers modifiers) = 0;
    virtual void ContextClick(int row) = 0;
    /// The menu of what is at a client point, asked for by mouse or key.
    virtual void ContextMenu(CPoint client) = 0;
    virtual void DoubleClick(CPoint client) = 0;
    /// Whether rows can be dragged out; else the pointer's way over them selects them.
    [[nodiscard]] virtual bool CanDrag() const { return false; }
    /// The user drags what is at a client point; bit 0 of the flags is the left button, bit 1 the right one.
    /// Comes back when the drag is over.
    virtual void BeginDrag(CPoint /*client*/, UINT /*flags*/) {}
    /// The user wants to look for something; true if that has led somewhere.
    virtual bool Find() = 0;
    virtual void Key(TKey key, TModifiers modifiers) = 0;
    virtual void Type(const CStringU& text, std::int64_t milliseconds) = 0;
    /// True while a blank belongs to what the user is typing.
    [[nodiscard]] virtual bool IsTyping(std::int64_t milliseconds) const = 0;
    virtual void Scroll(int topRow, int scrollX) = 0;
    virtual void EnsureVisible(int row) = 0;
};

}  // namespace vapp_qt
