#pragma once

// The program's texts and Qt's own in the language of the user's locale (LANGUAGE, LC_ALL,
// LC_MESSAGES, LANG, as the desktop sets them). A text with no translation stays as written,
// so under the C locale the program speaks as its sources do.
class ProgramFiles;

namespace Translations {

// Installs the catalogues into the running application object; they live as long as it does.
// The program's own come with the pieces of program (by default the running one's).
void Install(const ProgramFiles& program);
void Install();

} // namespace Translations
