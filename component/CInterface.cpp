// The C interface: names become members of the class, exceptions become codes.
#include <algorithm>
#include <array>
#include <limits>
#include <new>
#include <string>
#include <string_view>
#include <system_error>
#include <variant>

#include "component/CallFailed.h"
#include "component/HostedEditors.h"
#include "component/events/EventFaults.h"
#include "component/kestEdit.h"
#include "editor/frmEdit.h"
#include "persistence/JobFormat.h"

namespace kestedit {

namespace {

constexpr std::string_view className = "kestEdit.clsEdit";

using SetText = void (clsEdit::*)(std::string);
using SetInteger = void (clsEdit::*)(std::int16_t);

struct Property {
    std::string_view name;
    std::variant<SetText, SetInteger> assign;
};

// In the order of the class's interface.
constexpr auto properties = std::to_array<Property>({
    {"JobFile", &clsEdit::JobFile},
    {"Mode", &clsEdit::Mode},
    {"View", &clsEdit::View},
    {"AppTitle", &clsEdit::AppTitle},
    {"JobDir", &clsEdit::JobDir},
    {"INIFile", &clsEdit::INIFile},
    {"Language", &clsEdit::Language},
    {"PgmData", &clsEdit::PgmData},
    {"JobExtension", &clsEdit::JobExtension},
    {"HelpFile", &clsEdit::HelpFile},
});

thread_local std::string lastError;
thread_local std::string lastText;

kestEdit_Result failed(kestEdit_Result result, const char* text) noexcept {
    try {
        lastError = text;
    } catch (...) {
        lastError.clear();
    }
    return result;
}

/// Runs the body of one function of the interface. Nothing that it throws goes further.
template <class Body>
kestEdit_Result answer(Body body) noexcept {
    try {
        body();
        return KESTEDIT_OK;
    } catch (const CallFailed& failure) {
        return failed(failure.result(), failure.what());
    } catch (const EditorOpen& failure) {
        return failed(KESTEDIT_EDITOR_OPEN, failure.what());
    } catch (const UnknownName& fault) {
        return failed(KESTEDIT_UNKNOWN_NAME, fault.what());
    } catch (const WrongWord& fault) {
        return failed(KESTEDIT_BAD_ARGUMENT, fault.what());
    } catch (const EventRefused& refusal) {
        return failed(KESTEDIT_REFUSED, refusal.what());
    } catch (const std::system_error& failure) {
        return failed(KESTEDIT_SYSTEM, failure.what());
    } catch (const std::bad_alloc&) {
        return failed(KESTEDIT_SYSTEM, "out of memory");
    } catch (const std::exception& failure) {
        return failed(KESTEDIT_INTERNAL, failure.what());
    } catch (...) {
        return failed(KESTEDIT_INTERNAL, "a callback threw something that says nothing");
    }
}

template <class Pointer>
Pointer given(Pointer pointer, const char* what) {
    if (!pointer) throw CallFailed(KESTEDIT_BAD_ARGUMENT, std::string(what) + " is null");
    return pointer;
}

/// How to assign the property of that name a value of the type that `Set` takes.
template <class Set>
Set setterOf(const char* name) {
    const std::string_view wanted = given(name, "the name of the property");
    const auto found = std::ranges::find(properties, wanted, &Property::name);
    if (found == properties.end())
        throw CallFailed(KESTEDIT_UNKNOWN_NAME, "no property is named \"" + std::string(wanted) + '"');
    if (const Set* const set = std::get_if<Set>(&found->assign)) return *set;
    const bool takesText = std::holds_alternative<SetText>(found->assign);
    throw CallFailed(KESTEDIT_WRONG_TYPE,
                     "the property " + std::string(wanted) + (takesText ? " takes a text" : " takes an integer"));
}

/// The driver that shows the editor's form on this thread.
CallbackDriver& runningDriver(kestEdit_Handle editor) {
    static_cast<void>(editorOf(editor));
    CallbackDriver* const driver = CallbackDriver::runningHere(editor);
    if (!driver) throw CallFailed(KESTEDIT_REFUSED, "the form is not shown by a driver of this thread");
    return *driver;
}

std::int16_t shortInteger(std::int32_t number) {
    using Limits = std::numeric_limits<std::int16_t>;
    if (number < Limits::min() || number > Limits::max())
        throw CallFailed(KESTEDIT_BAD_ARGUMENT, std::to_string(number) + " is no 16-bit integer");
    return static_cast<std::int16_t>(number);
}

}  // namespace

}  // namespace kestedit

using namespace kestedit;

const char* kestEdit_version(void) {
    return programVersion().data();
}

const char* kestEdit_lastError(void) {
    return lastError.c_str();
}

kestEdit_Result kestEdit_create(const char* class_name, kestEdit_Handle* editor) {
    return answer([=] {
        *given(editor, "the place for the handle") = 0;
        const std::string_view wanted = given(class_name, "the name of the class");
        if (wanted != className)
            throw CallFailed(KESTEDIT_UNKNOWN_NAME, "no class is named \"" + std::string(wanted) + '"');
        *editor = addEditor(std::make_shared<HostedEditor>());
    });
}

kestEdit_Result kestEdit_release(kestEdit_Handle editor) {
    return answer([=] {
        const Claim claim(editor);
        removeEditor(editor);
    });
}

kestEdit_Result kestEdit_setText(kestEdit_Handle editor, const char* property, const char* text) {
    return answer([=] {
        const Claim claim(editor);
        const SetText set = setterOf<SetText>(property);
        (claim->editor.*set)(given(text, "the text"));
    });
}

kestEdit_Result kestEdit_setInteger(kestEdit_Handle editor, const char* property, std::int32_t number) {
    return answer([=] {
        const Claim claim(editor);
        const SetInteger set = setterOf<SetInteger>(property);
        (claim->editor.*set)(shortInteger(number));
    });
}

kestEdit_Result kestEdit_onSetNewValues(kestEdit_Handle editor, kestEdit_SetNewValues event, void* user) {
    return answer([=] {
        const Claim claim(editor);
        claim->editor.SetNewValues = nullptr;
        if (event) claim->editor.SetNewValues = [=](const std::string& text) { event(text.c_str(), user); };
    });
}

kestEdit_Result kestEdit_onSearchJobs(kestEdit_Handle editor, kestEdit_SearchJobs event, void* user) {
    return answer([=] {
        const Claim claim(editor);
        claim->editor.SearchJobs = nullptr;
        if (event) claim->editor.SearchJobs = [=] { event(user); };
    });
}

kestEdit_Result kestEdit_show(kestEdit_Handle editor, std::int32_t view_level) {
    return answer([=] {
        const Claim claim(editor);
        claim->show(editor, shortInteger(view_level));
    });
}

kestEdit_Result kestEdit_setDriver(kestEdit_Handle editor, kestEdit_Run run, kestEdit_Ask ask, void* user) {
    return answer([=] {
        const Claim claim(editor);
        claim->callbacks.run = run;
        claim->callbacks.ask = ask;
        claim->callbacks.user = user;
    });
}

kestEdit_Result kestEdit_setChoosers(kestEdit_Handle editor, kestEdit_Choose folder, kestEdit_Choose file,
                                     kestEdit_Run new_folder, void* user) {
    return answer([=] {
        const Claim claim(editor);
        claim->callbacks.folder = folder;
        claim->callbacks.file = file;
        claim->callbacks.newFolder = new_folder;
        claim->callbacks.chooserUser = user;
    });
}

kestEdit_Result kestEdit_event(kestEdit_Handle editor, const char* event, const char* control, const char* text) {
    return answer([=] { runningDriver(editor).event(given(event, "the name of the event"), control, text); });
}

kestEdit_Result kestEdit_get(kestEdit_Handle editor, const char* property, const char** text) {
    return answer([=] {
        *given(text, "the place for the text") = "";
        lastText = runningDriver(editor).text(given(property, "the name of the property"));
        *text = lastText.c_str();
    });
}
