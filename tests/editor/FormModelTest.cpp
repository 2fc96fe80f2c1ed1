// The list of the controls' names against the form itself.
#include <gtest/gtest.h>
#include <string>

#include "form/ControlNames.h"
#include "form/FormModel.h"

namespace kestedit {
namespace {

// Tables are checked against the list when they are compiled, so the list must be the form's.
TEST(FormModel, HasTheControlsOfTheListOfNames) {
    std::string listed;
    for (const NamedControl& name : controlNames) {
        for (int member = name.members == 0 ? -1 : 0; member < name.members; ++member)
            listed += std::string{name.base} + (member < 0 ? "" : "(" + std::to_string(member) + ")") + "\n";
    }
    const FormModel form;
    std::string declared;
    for (const EditorControl* control : form.controls())
        declared += control->Name() + "\n";
    EXPECT_EQ(declared, listed);
}

}  // namespace
}  // namespace kestedit
