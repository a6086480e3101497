#pragma once

#include "Pose.h"

#include <array>
#include <vector>

/** A variable for each state of a control, so that working with one does not change the others. */
template <class T>
class PerState
{
public:
    /** @param bad  what the control of the column "Invalid" is bound to */
    PerState(T good, T bad)
    {
        m_values.fill(good);
        m_values[stInvalid] = bad;
    }
    T& operator[](State state) { return m_values[state]; }

private:
    std::array<T, stateCount> m_values;
};

/** One row of the gallery: how a control is inserted, and which states it has. */
struct Row {
    using InsertFn = CECtrl* (*)(CCtrlCat& cat, int width, State state);
    using SpoilFn = void (*)(CECtrl& ctrl);

    const wchar_t* what; ///< the class
    int code;            ///< CECtrl::TypeCode; 0: none
    int height;          ///< units
    unsigned states;     ///< bits 1 << State
    InsertFn insert;     ///< inserts it at the cursor, as it is in stNormal or stInvalid
    /** Types into it what is not valid, once its window is there; null: its variable says it. */
    SpoilFn spoil = nullptr;
};

/** A section of the gallery. */
struct Section {
    const wchar_t* name;
    int columns; ///< 6; 3 for wide controls, which stand in two lines; 1: shown alone, as it is in stNormal
    std::vector<Row> rows;
};

constexpr unsigned Has(State state)
{
    return 1U << state;
}
constexpr unsigned shownOnly = Has(stNormal) | Has(stDisabled);
constexpr unsigned operated = shownOnly | Has(stHot) | Has(stFocused);
constexpr unsigned pressable = operated | Has(stPressed);

/** Counts what the controls report, for the gallery to show that they do. */
class CCounter : public CObject
{
public:
    void OnCallback() { ++count; }
    static CEVal::CbNone Member() { return static_cast<CEVal::CbNone>(&CCounter::OnCallback); }

    int count = 0;
};
extern CCounter counter;

/** @name The sections, each in a file of its own @{ */
Section FieldRows();
Section ButtonRows();
Section WideRows();
Section DrawnRows();
Section MenuRows();
/** @} */

/** Draws the CEWnd of DrawnRows(): the roll of a boat. */
void DrawRoll(const CEWnd& ctrl, CDC& dc, const CRect& place);

/** The menu of MenuRows(), and the button below which it opens; for its picture. @{ */
CEMenu& GalleryMenu();
CECtrl& GalleryMenuButton();
/** @} */
