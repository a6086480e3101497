#pragma once

#include "core/CLstMgd.h"
#include "core/VantApi.h"
#include "settings/CESetCol.h"

#include <afx.h>

/** The settings tree and its file: named collections of named and typed objects.
 *
 *  A tree is made for one direction. To save: make it with a non-zero flag, add collections and objects, let
 *  every participant write its items, Save. To load: make it with 0, Load, find collections and objects by
 * name and let every participant read its items, through the same calls. Destroying the tree destroys all of
 * it.
 *
 *  The file is a subset of XML, one tag to a line, in the system's 8-bit code page:
 *  @code
 *  <?xml version="1.0" ?>
 *  <Corvane date="Saturday, November 21, 2026 03:14:29">
 *      <Collection name="Windows">
 *          <Object name="Plan" type="CPlanWnd">
 *              <Scale val="1.5"/>
 *              <Data>a line of data</Data>
 *          </Object>
 *      </Collection>
 *  </Corvane>
 *  @endcode
 *  Nothing in it is escaped. See CESetObj for what a file cannot keep. */
class VANT_API CESet : public CLstMgd<CESetCol>
{
public:
    /** @param storing  non-zero: the tree is filled in order to be saved; 0: it is loaded, then read */
    explicit CESet(int storing)
        : m_storing(storing)
    {
    }
    /** Copy the whole tree and the flag; all in the copy belongs to the copy. @{ */
    CESet(const CESet& other);
    CESet& operator=(const CESet& other);
    /** @} */
    ~CESet() override = default;

    /** The flag that the constructor was given, and its negation. @{ */
    int IsStoring() const noexcept { return m_storing; }
    int IsLoading() const noexcept { return !m_storing; }
    /** @} */

    /** Appends a new collection, whether or not the name exists. @return the collection, which the tree owns
     */
    CESetCol* AddCol(CString name);
    /** @return the first collection with exactly that name, or null */
    CESetCol* GetCol(CString name) const;

    /** Writes the tree to a file, which it creates or replaces; its directory must exist. The previous file
     * stays whole when anything fails or interrupts this: the new one is written beside it and takes its
     * place once it is complete and on the disk. Characters that the code page lacks become '?'.
     *  @return non-zero for success; 0 when the file could not be written, nothing having changed */
    int Save(CString file) const;

    /** Appends what a file holds to the tree. Lines that are damaged or unknown are skipped without a word.
     *
     *  A line counts as soon as its fields can be read, as scanf sees it, so nothing behind its last field is
     *  looked at. A field holds at least one and at most 4,095 characters; the value, type, collection name
     *  or data at the end of a line is cut there, a line with a longer name before that is skipped. Of a line
     *  of more than 256 KB only the beginning is read. A line's text ends at a NUL.
     *
     *  Deliberately, the text of a value is taken as a format without arguments: "%%" gives "%". Any other
     *  directive gives what it would for an argument of zero or empty text ("%d" gives "0"), so that a
     *  settings file is input and never code.
     *
     *  @return non-zero for success; 0 when the file could not be opened or read, the tree being unchanged */
    int Load(CString file);

private:
    void Adopt() noexcept;
    void TakeAll(CESet& other);

    int m_storing;
};
