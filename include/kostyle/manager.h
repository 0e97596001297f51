/*
 * KoStyle: managers. A manager belongs to one application identifier and owns everything that the
 * host reaches through it.
 */
#ifndef KOSTYLE_MANAGER_H
#define KOSTYLE_MANAGER_H

#include "types.h"

/**
 * Returns the manager of an application identifier, creating it when there is none yet.
 *
 * When a manager with the identifier exists, it is returned and the directories are ignored, though the
 * arrays must be valid. A new manager starts empty: call StyleManager_readSystemStyles() and
 * StyleManager_readUserStyles(). May be called from any thread at any time.
 *
 * @param appID application identifier; not empty; compared exactly.
 * @param systemStyleDirPath directory of the styles shipped with the host; must exist.
 * @param userStyleDirPath directory of the user's styles; created with all missing parents. A plain
 *        file in its place is taken for it: the code is KOSTYLE_OK, then StyleManager_readUserStyles()
 *        gives KOSTYLE_ERROR_DIRECTORY_MISSING and MutableStyle_save() KOSTYLE_ERROR_OPEN_FAILED.
 * @param systemStyleDirs further directories read as system styles, or NULL.
 * @param numSystemStyleDirs number of entries of systemStyleDirs; none when 0 or less. No entry may
 *        be NULL.
 * @param userStyleDirs further directories read as user styles, or NULL.
 * @param numUserStyleDirs number of entries of userStyleDirs, as above.
 * @param error receives KOSTYLE_OK, or the first that applies of KOSTYLE_ERROR_APP_ID_MISSING,
 *        KOSTYLE_ERROR_SYSTEM_DIRECTORY_MISSING and KOSTYLE_ERROR_USER_DIRECTORY_NOT_CREATABLE. May be
 *        NULL.
 * @return the manager, owned by the library until StyleManager_destroy() or until the library is
 *         unloaded, which at the end of a process comes after the host's own static objects; NULL on
 *         failure.
 */
KOSTYLE_API KoStyleManager* CreateStyleManager(
    const KoStyleChar* appID, const KoStyleChar* systemStyleDirPath,
    const KoStyleChar* userStyleDirPath, const KoStyleChar* const* systemStyleDirs,
    int numSystemStyleDirs, const KoStyleChar* const* userStyleDirs, int numUserStyleDirs, int* error);

/** Another name of CreateStyleManager(). */
KOSTYLE_API KoStyleManager* Module_createStyleManager(
    const KoStyleChar* appID, const KoStyleChar* systemStyleDirPath,
    const KoStyleChar* userStyleDirPath, const KoStyleChar* const* systemStyleDirs,
    int numSystemStyleDirs, const KoStyleChar* const* userStyleDirs, int numUserStyleDirs, int* error);

/**
 * Whether a pointer is a living manager. The pointer is only compared, so a destroyed one is allowed.
 * Takes no lock: must not run while another thread creates or destroys a manager.
 */
KOSTYLE_API bool HasStyleManager(KoStyleManager* manager);

/** Another name of HasStyleManager(). */
KOSTYLE_API bool Module_hasStyleManager(KoStyleManager* manager);

/**
 * Destroys a manager with everything that it owns; all handles and texts reached through it end. All
 * components that share the application identifier share the manager, so the first call destroys it for
 * all of them. May be called from any thread, but not while another uses the manager.
 *
 * @return true; false for a null handle.
 */
KOSTYLE_API bool StyleManager_destroy(KoStyleManager* manager);

/** The application identifier. */
KOSTYLE_API const KoStyleChar* StyleManager_appID(KoStyleManager* manager);

/** The system style directory, as given to CreateStyleManager(). */
KOSTYLE_API const KoStyleChar* StyleManager_systemStyleDirPath(KoStyleManager* manager);

/** The user style directory, as given to CreateStyleManager(). */
KOSTYLE_API const KoStyleChar* StyleManager_userStyleDirPath(KoStyleManager* manager);

/**
 * Reads the system styles anew: every file directly inside the system style directory and the further
 * system directories whose extension is exactly ".kostyle". The system styles and system creation
 * results of an earlier read are destroyed first, whatever the outcome.
 *
 * Bad files do not fail the read: each opened file leaves one creation result that says whether its
 * style was taken. Files that cannot be opened, further directories that do not exist and directories
 * that exist but cannot be listed are passed over without a creation result: the code is KOSTYLE_OK.
 * The order of the styles is that of the directories, and within one directory the order in which the
 * file system enumerates the files.
 *
 * Identifiers are unique over the system and the user styles together: a file whose identifier a style
 * of either set has is refused with KOSTYLE_ERROR_DUPLICATE_ID, so the order of the two reads decides
 * which of two such files is taken. When memory runs out, the set and its creation results hold what
 * was read so far.
 *
 * @return KOSTYLE_OK; KOSTYLE_ERROR_DIRECTORY_MISSING when the system style directory does not exist or
 *         is not a directory (the set is then empty); KOSTYLE_ERROR_INVALID_HANDLE for a null handle.
 */
KOSTYLE_API int StyleManager_readSystemStyles(KoStyleManager* manager);

/**
 * Reads the user styles anew, from the user style directory and the further user directories, as
 * StyleManager_readSystemStyles() does; the property editors end with the styles.
 *
 * @return KOSTYLE_OK; KOSTYLE_ERROR_DIRECTORY_MISSING when the user style directory does not exist or
 *         is not a directory (the set is then empty); KOSTYLE_ERROR_INVALID_HANDLE for a null handle.
 */
KOSTYLE_API int StyleManager_readUserStyles(KoStyleManager* manager);

/** Number of creation results of the last read of the system styles; SIZE_MAX for a null handle. */
KOSTYLE_API size_t StyleManager_numSystemStyleCreationResult(KoStyleManager* manager);

/** The creation result at an index of the last read of the system styles, in reading order. */
KOSTYLE_API KoStyleCreationResult* StyleManager_systemStyleCreationResult(KoStyleManager* manager,
                                                                          size_t index);

/** Number of creation results of the last read of the user styles; SIZE_MAX for a null handle. */
KOSTYLE_API size_t StyleManager_numUserStyleCreationResult(KoStyleManager* manager);

/** The creation result at an index of the last read of the user styles, in reading order. */
KOSTYLE_API KoStyleCreationResult* StyleManager_userStyleCreationResult(KoStyleManager* manager,
                                                                        size_t index);

/** Number of system styles; SIZE_MAX for a null handle. */
KOSTYLE_API size_t StyleManager_numSystemStyle(KoStyleManager* manager);

/** The system style at an index, in reading order. */
KOSTYLE_API KoStyleStyle* StyleManager_systemStyle(KoStyleManager* manager, size_t index);

/** Number of user styles; SIZE_MAX for a null handle. */
KOSTYLE_API size_t StyleManager_numUserStyle(KoStyleManager* manager);

/** The user style at an index: in reading order, then in the order in which styles were saved. */
KOSTYLE_API KoStyleStyle* StyleManager_userStyle(KoStyleManager* manager, size_t index);

/** Whether a style is one of the manager's system styles. The style is only compared. */
KOSTYLE_API bool StyleManager_hasSystemStyle(KoStyleManager* manager, KoStyleStyle* style);

/** Whether a style is one of the manager's user styles. The style is only compared. */
KOSTYLE_API bool StyleManager_hasUserStyle(KoStyleManager* manager, KoStyleStyle* style);

/** Whether a style is one of the manager's mutable styles. The style is only compared. */
KOSTYLE_API bool StyleManager_hasMutableStyle(KoStyleManager* manager, KoStyleStyle* style);

/**
 * Creates an empty mutable style, to become a new user style or the new content of one.
 *
 * @return the style, owned by the manager until MutableStyle_destroy(), a successful
 *         MutableStyle_save() or MutableStyle_overwrite(), or the manager's end.
 */
KOSTYLE_API KoStyleStyle* StyleManager_createMutableStyle(KoStyleManager* manager);

#endif
