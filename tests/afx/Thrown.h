#pragma once

#include <afx.h>
#include <gtest/gtest.h>

/** Runs @p action, which is to throw an @p Exception by its pointer. @return Its cause; -1, and a failed
 * test, when it throws none. */
template <class Exception>
int ThrownCause(auto&& action)
{
    try {
        action();
    } catch (Exception* e) {
        const int cause = e->m_cause;
        e->Delete();
        return cause;
    } catch (CException* e) {
        ADD_FAILURE() << "another exception: " << e->GetRuntimeClass()->m_lpszClassName;
        e->Delete();
        return -1;
    }
    ADD_FAILURE() << "no exception";
    return -1;
}

/** Runs @p action. @return Whether it throws an @p Exception, which is freed. */
template <class Exception>
bool Throws(auto&& action)
{
    try {
        action();
    } catch (Exception* e) {
        e->Delete();
        return true;
    }
    return false;
}
