// Reads programs without running them and tells what is wrong with them.
//
//     check::CheckedProgram checked({{u"form.lsp", text}}, knowledge, find);
//     for (const check::Finding& finding : checked.findings()) …
#pragma once

#include <memory>
#include <vector>

#include "host/check/Finding.h"
#include "host/check/Program.h"

namespace check {

class CheckedProgram {
  public:
    // The files are one program, as if they ran one after the other. `knowledge` must outlive the object.
    // `alsoDefined` are names of functions that come from elsewhere.
    CheckedProgram(std::vector<Source> files, const Knowledge& knowledge, FindSource find,
                   const std::vector<std::u16string>& alsoDefined = {});
    ~CheckedProgram();

    // By file and place. Also those of files that the program loads.
    const std::vector<Finding>& findings() const { return m_findings; }
    // The names of the functions that it defines, in capitals.
    std::vector<std::u16string> definedNames() const;

    // The innermost list of the first file around an offset, also within actions, from the outermost; for
    // editors.
    std::vector<const Form*> formsAround(uint32_t offset) const;
    // Which dialog is current where that list is a call.
    DialogSet dialogAt(const Form& call) const;
    // Those that the program opens by their names.
    std::vector<const Dialog*> openedDialogs() const;

  private:
    class Work;

    std::unique_ptr<Program> m_program;
    std::unique_ptr<Work> m_work;
    std::vector<Finding> m_findings;
};

}  // namespace check
