/*
 * A host in C: creates a job without a window.
 *   host-c FOLDER NAME LANGUAGE-FILE
 */
#include <kestEdit/kestEdit.h>
#include <stdio.h>

struct Job {
    const char* name;
};

/* Prints what failed and counts it. */
static int failures = 0;
static void require(kestEdit_Result result) {
    if (result == KESTEDIT_OK) return;
    fprintf(stderr, "host-c: %s\n", kestEdit_lastError());
    failures++;
}

static void fillForm(kestEdit_Handle editor, void* user) {
    const struct Job* job = user;
    require(kestEdit_event(editor, "type", "dxName", job->name));
    require(kestEdit_event(editor, "type", "dxSource", "/var/log"));
    require(kestEdit_event(editor, "type", "dxDest", "/var/backups"));
    require(kestEdit_event(editor, "choose", "optAction(3)", NULL));
    require(kestEdit_event(editor, "choose", "optIntervall(1)", NULL));
    require(kestEdit_event(editor, "set-time", "dxDateTime", "18:30:00"));
    const char* time = NULL;
    require(kestEdit_get(editor, "dxDateTime.EditValue", &time));
    printf("every day at %s\n", time);
    require(kestEdit_event(editor, "click", "cmdSave", NULL));
}

static void jobSaved(void* user) {
    const struct Job* job = user;
    printf("event: look for %s.job\n", job->name);
}

int main(int argc, char* argv[]) {
    if (argc != 4) {
        fprintf(stderr, "host-c FOLDER NAME LANGUAGE-FILE\n");
        return 2;
    }
    struct Job job = {argv[2]};
    kestEdit_Handle editor = 0;
    require(kestEdit_create("kestEdit.clsEdit", &editor));
    require(kestEdit_setText(editor, "Mode", "New"));
    require(kestEdit_setText(editor, "JobDir", argv[1]));
    require(kestEdit_setText(editor, "JobExtension", ".job"));
    require(kestEdit_setText(editor, "Language", argv[3]));
    require(kestEdit_onSearchJobs(editor, jobSaved, &job));
    require(kestEdit_setDriver(editor, fillForm, NULL, &job));
    require(kestEdit_show(editor, 4));
    require(kestEdit_release(editor));
    return failures ? 1 : 0;
}
