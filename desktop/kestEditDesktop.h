/* The editor's window for hosts in C: kestEdit.h, and the one call that brings the window in. */
#ifndef KESTEDIT_DESKTOP_H
#define KESTEDIT_DESKTOP_H

#include "component/kestEdit.h"

#ifdef __cplusplus
extern "C" {
#endif

/*
 * From now on kestEdit_show opens the window, for every editor without a driver of its own; KESTEDIT_NO_WINDOW when no
 * display can be reached. Call kestEdit_show on the thread of the user interface.
 */
KESTEDIT_API void kestEdit_useDesktop(void);

#ifdef __cplusplus
}
#endif

#endif
