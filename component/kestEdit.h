/*
 * The job editor for hosts in C, and in every language that can call C.
 *
 * A host creates an editor by its class name, assigns its properties, shows it, hears its event and releases it:
 *
 *     kestEdit_Handle editor;
 *     kestEdit_create("kestEdit.clsEdit", &editor);
 *     kestEdit_setText(editor, "Mode", "New");
 *     kestEdit_setText(editor, "JobDir", "/home/ann/jobs");
 *     kestEdit_onSearchJobs(editor, lookForNewJob, NULL);
 *     if (kestEdit_show(editor, 4) != KESTEDIT_OK) fprintf(stderr, "%s\n", kestEdit_lastError());
 *     kestEdit_release(editor);
 *
 * Every mistake is answered by a code, and kestEdit_lastError says it in words. A handle is a number that is never
 * given out twice, so one that was released, or never existed, is recognised. All texts are UTF-8 that ends with a NUL,
 * copied before the call returns; a path may be any bytes that the file system takes.
 */
#ifndef KESTEDIT_H
#define KESTEDIT_H

#include <stdint.h>

#define KESTEDIT_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* 0 is no editor. */
typedef uint64_t kestEdit_Handle;

/* The numbers are part of the interface and never change. */
typedef enum kestEdit_Result {
    KESTEDIT_OK = 0,
    KESTEDIT_BAD_HANDLE = 1,   /* no editor has this handle: it is 0, was released or never created */
    KESTEDIT_BAD_ARGUMENT = 2, /* a null pointer, a number out of range, or a word that an event does not take */
    KESTEDIT_UNKNOWN_NAME = 3, /* no class, property, event or control has this name */
    KESTEDIT_WRONG_TYPE = 4,   /* a text for the property that takes a number, or the other way round */
    KESTEDIT_BUSY = 5,         /* the editor is being shown: the call came from inside an event or another thread */
    KESTEDIT_EDITOR_OPEN = 6,  /* another editor is open: there is one at a time in a process */
    KESTEDIT_NO_WINDOW = 7,    /* nothing is there to show the form: no driver, or no display */
    KESTEDIT_REFUSED = 8,      /* an event that no user could cause, such as a click on a disabled control */
    KESTEDIT_SYSTEM = 9,       /* the system refused: a file that cannot be written, no memory */
    KESTEDIT_INTERNAL = 10     /* anything else; the text says what */
} kestEdit_Result;

/* The version of the library, such as "1.00.00". */
KESTEDIT_API const char* kestEdit_version(void);

/*
 * What the last call of this thread that failed came to. Empty before the first failure, never null; valid until the
 * next call of this thread that fails.
 */
KESTEDIT_API const char* kestEdit_lastError(void);

/* `class_name` is "kestEdit.clsEdit". On a failure *editor becomes 0. */
KESTEDIT_API kestEdit_Result kestEdit_create(const char* class_name, kestEdit_Handle* editor);

/* Refused with KESTEDIT_BUSY while the editor is being shown: release it when kestEdit_show has returned. */
KESTEDIT_API kestEdit_Result kestEdit_release(kestEdit_Handle editor);

/*
 * The properties, in the order of the class:
 *
 *     JobFile       full path of the job to edit; a save may change it
 *     Mode          "New" creates a job, "Edit" opens one; case counts
 *     View          a 16-bit integer; all others are texts
 *     AppTitle      title of the window and of the message boxes
 *     JobDir        folder of the job files
 *     INIFile       program settings file
 *     Language      language file
 *     PgmData       kept, and used by nothing
 *     JobExtension  what stands behind a job's name, such as ".job"
 *     HelpFile      what the help key opens; the installed manual, if this is empty
 *
 * They keep their values between two runs, and a run may change Mode and JobFile: assign all of them again before each.
 */
KESTEDIT_API kestEdit_Result kestEdit_setText(kestEdit_Handle editor, const char* property, const char* text);
KESTEDIT_API kestEdit_Result kestEdit_setInteger(kestEdit_Handle editor, const char* property, int32_t number);

/*
 * The two events, raised inside kestEdit_show when the form has closed and Cancel was not its end. SetNewValues comes
 * after the editing of a job, with a text that is always empty; SearchJobs after a run that ended in Mode "New". A null
 * function hears nothing. `user` is handed back as it is.
 */
typedef void (*kestEdit_SetNewValues)(const char* text, void* user);
typedef void (*kestEdit_SearchJobs)(void* user);
KESTEDIT_API kestEdit_Result kestEdit_onSetNewValues(kestEdit_Handle editor, kestEdit_SetNewValues event, void* user);
KESTEDIT_API kestEdit_Result kestEdit_onSearchJobs(kestEdit_Handle editor, kestEdit_SearchJobs event, void* user);

/*
 * Runs the editor and returns when it has closed. `view_level` is 4 for the complete editor, 9, 15 or 23 for a reduced
 * one. The form is shown by the editor's own driver, see below, or else by the desktop, once the host has called
 * kestEdit_useDesktop (kestEditDesktop.h, in the library kestEditDesktop); with neither, KESTEDIT_NO_WINDOW.
 */
KESTEDIT_API kestEdit_Result kestEdit_show(kestEdit_Handle editor, int32_t view_level);

/* ---- A driver of the host's own: jobs without a window, for servers and for tests. */

typedef enum kestEdit_Buttons {
    KESTEDIT_BUTTONS_OK = 0,
    KESTEDIT_BUTTONS_YES_NO = 1,
    KESTEDIT_BUTTONS_CANCEL_RETRY_CONTINUE = 2,
    KESTEDIT_BUTTONS_YES_NO_CANCEL = 3
} kestEdit_Buttons;

typedef enum kestEdit_Answer {
    KESTEDIT_ANSWER_OK = 0,
    KESTEDIT_ANSWER_YES = 1,
    KESTEDIT_ANSWER_NO = 2,
    KESTEDIT_ANSWER_CANCEL = 3,
    KESTEDIT_ANSWER_RETRY = 4,
    KESTEDIT_ANSWER_CONTINUE = 5
} kestEdit_Answer;

/* Called once the form is loaded; hands it the user's events by kestEdit_event. An open form is cancelled afterwards.
 */
typedef void (*kestEdit_Run)(kestEdit_Handle editor, void* user);

/*
 * Answers a message box with a kestEdit_Answer that its kestEdit_Buttons have; lines of `text` end with CR LF. Any
 * other answer makes the event fail that asked.
 */
typedef int32_t (*kestEdit_Ask)(const char* title, const char* text, int32_t buttons, void* user);

/* A null `run` takes the driver away. Without `ask` every message box gets its careful answer: ok, no, cancel. */
KESTEDIT_API kestEdit_Result kestEdit_setDriver(kestEdit_Handle editor, kestEdit_Run run, kestEdit_Ask ask, void* user);

/*
 * Answers a chooser with a path, which is copied before anything else happens, or with null to cancel. `from` is the
 * folder that a folder chooser opens on, and the filter of a file chooser.
 */
typedef const char* (*kestEdit_Choose)(const char* title, const char* from, void* user);

/*
 * What the inner buttons of the path fields lead to in a driver's run; a null function cancels. `new_folder` is called
 * while the dialog for a new folder is open: "type", "clear", "click" and "close" of kestEdit_event go to it, and its
 * controls are dxTextEdit1, cmdCreate and cmdCancel. An open dialog is closed afterwards.
 */
KESTEDIT_API kestEdit_Result kestEdit_setChoosers(kestEdit_Handle editor, kestEdit_Choose folder, kestEdit_Choose file,
                                                  kestEdit_Run new_folder, void* user);

/*
 * One event of the user, only from inside `run` or `new_folder` and on their thread, not while a question waits for its
 * answer. The events are those of the script language. `control` is a name of the form, a member of a group as
 * "optAction(3)"; what an event does not take is ignored, and null where it takes something means an empty text.
 *
 *     type      dxName        "Night"       the text of a field; of a number field, decimal digits
 *     check     chkSubFolder  "1"           a check box: 0, 1 or 2
 *     choose    optAction(3)  NULL          a member of an option group; also optAction with "3"
 *     pick      dxZipGrade    "High"        an entry of a pick list, the first of equal ones
 *     pick-entry dxZipGrade   "3"           an entry of a pick list by its position from 0
 *     set-date  dxDate        "2026-11-21"  a date
 *     set-time  dxDateTime    "14:05:00"    a time of day
 *     number    dxDays        "3"           a number
 *     spin      dxHours       "up"          one click of a spin button: up or down
 *     clear     dxDate        NULL          empties an editor
 *     button    dxSource      "0"           an editor's inner button: 0 browses, 1 creates a folder
 *     click     cmdSave       NULL          a button
 *     node      NULL          "3"           a navigation node, from 0
 *     key       NULL          "down"        an arrow key in the navigation list: up or down
 *     timer     NULL          NULL          the one-shot timer, which checks the paths and the schedule
 *     close     NULL          NULL          the window's close box
 *
 * The form closes with a save, a cancel or its close box. Every event behind that is refused.
 */
KESTEDIT_API kestEdit_Result kestEdit_event(kestEdit_Handle editor, const char* event, const char* control,
                                            const char* text);

/*
 * What the form shows or holds: "dxName.EditValue", "cmdSave.Enabled", "frmEdit.JobFile". The properties are those that
 * scripts print, in the same form: a text in double quotes with the escapes \" \\ \r \n \t, a number in decimal, True
 * or False, 2026-11-21, 14:05:00, ["a", "b"], or Empty. *text is valid until the next kestEdit_get of this thread, and
 * an empty text on a failure. Only from inside a driver's run and on its thread; also from `ask`, from a chooser, and
 * when the form has closed.
 */
KESTEDIT_API kestEdit_Result kestEdit_get(kestEdit_Handle editor, const char* property, const char** text);

#ifdef __cplusplus
}
#endif

#endif
