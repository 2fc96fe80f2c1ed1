#include "component/HostedEditors.h"

#include <map>
#include <mutex>
#include <string>
#include <utility>

#include "component/CallFailed.h"
#include "component/FrontEnd.h"

namespace kestedit {

namespace {

/// Handles count up and none is given out twice, so a released one is recognised for as long as the process lives.
struct Table {
    std::mutex mutex;
    std::map<kestEdit_Handle, std::shared_ptr<HostedEditor>> editors;
    kestEdit_Handle last = 0;
};

Table& table() {
    static Table editors;
    return editors;
}

std::unique_ptr<FrontEnd> requireFrontEnd() {
    std::unique_ptr<FrontEnd> frontEnd;
    try {
        frontEnd = makeFrontEnd();
    } catch (const std::exception& failure) {
        throw CallFailed(KESTEDIT_NO_WINDOW, failure.what());
    }
    if (!frontEnd)
        throw CallFailed(KESTEDIT_NO_WINDOW,
                         "nothing shows the form: call kestEdit_useDesktop or kestEdit_setDriver first");
    return frontEnd;
}

}  // namespace

void HostedEditor::show(kestEdit_Handle handle, std::int16_t view) {
    if (callbacks.run) {
        CallbackDriver driver(handle, callbacks);
        relay.connect(&driver, &driver);
        return editor.Show(view);
    }
    const std::unique_ptr<FrontEnd> frontEnd = requireFrontEnd();
    relay.connect(&frontEnd->driver(), &frontEnd->prompts());
    editor.Show(view);
}

kestEdit_Handle addEditor(std::shared_ptr<HostedEditor> editor) {
    const std::lock_guard lock(table().mutex);
    const kestEdit_Handle handle = ++table().last;
    table().editors.emplace(handle, std::move(editor));
    return handle;
}

void removeEditor(kestEdit_Handle handle) {
    const std::lock_guard lock(table().mutex);
    table().editors.erase(handle);
}

std::shared_ptr<HostedEditor> editorOf(kestEdit_Handle handle) {
    const std::lock_guard lock(table().mutex);
    const auto found = table().editors.find(handle);
    if (found == table().editors.end())
        throw CallFailed(KESTEDIT_BAD_HANDLE, "no editor has the handle " + std::to_string(handle));
    return found->second;
}

Claim::Claim(kestEdit_Handle handle) : editor_(editorOf(handle)) {
    if (editor_->claimed.exchange(true))
        throw CallFailed(KESTEDIT_BUSY, "the editor is being shown: wait until kestEdit_show has returned");
}

}  // namespace kestedit
