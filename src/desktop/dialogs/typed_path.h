#pragma once

#include <filesystem>

#include <QString>

namespace fundlet {

// The file or folder that the text in the save dialog's name field means.
struct TypedPath {
  enum class Kind { File, Folder, Refused };
  Kind kind;
  QString path;    // absolute, without "." and ".."; empty if refused
  QString reason;  // if refused: a message for the user
};

// Reads a text, relative to the absolute path of the folder shown. "~" and "~/" are the user's
// home folder; ".." is the folder above as the path shows it, also where a folder is a link. Blanks
// and quotation marks belong to the name. A file need not exist, but its folder must, unless the
// system cannot tell: writing the file then fails with the reason. A folder is another one than
// that shown; a link to a folder is a folder.
TypedPath ReadTypedPath(const QString& text, const QString& shown_folder);

std::filesystem::path ToPath(const QString& text);

}  // namespace fundlet
