#pragma once

#include "controls/CEGrid.h"

#include <functional>
#include <utility>
#include <vector>

struct Sounding {
    int line;
    double depth;
    CString note;
};

/** Hears of rows and edits, and has rows of its own. */
class GridOwner : public CObject
{
public:
    void OnRow(int row)
    {
        heard.push_back(row);
        if (also)
            std::exchange(also, nullptr)();
    }
    void OnEdit(double value)
    {
        edited.push_back(value);
        if (also)
            std::exchange(also, nullptr)();
    }
    void Get(CEGridCell& cell)
    {
        ++asked;
        cell.num = cell.col == 0 ? cell.row : cell.row * 0.5;
        cell.text.Format(L"Row %d", cell.row);
    }
    int Put(const CEGridCell& cell, CString& reason)
    {
        reason = L"Locked";
        put = cell;
        return allows;
    }
    int Sort(int col, int dir)
    {
        sorted.emplace_back(col, dir);
        return col != 1;
    }

    std::vector<int> heard;
    std::vector<double> edited;
    std::vector<std::pair<int, int>> sorted;
    CEGridCell put;
    int allows = 1;
    int asked = 0;
    std::function<void()> also;
};
