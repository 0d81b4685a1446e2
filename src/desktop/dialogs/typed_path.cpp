#include "desktop/dialogs/typed_path.h"

#include <algorithm>
#include <string>
#include <system_error>

#include <QDir>

namespace fundlet {

namespace {

namespace fs = std::filesystem;

TypedPath Refused(const QString& reason) { return {TypedPath::Kind::Refused, {}, reason}; }

fs::file_type TypeOf(const QString& path) {
  std::error_code ignored;
  return fs::status(ToPath(path), ignored).type();
}

QString FaultOf(fs::file_type type) {
  if (type == fs::file_type::not_found) return "There is no folder “%1”.";
  return type == fs::file_type::none ? "The folder “%1” cannot be opened."
                                     : "“%1” is not a folder.";
}

}  // namespace

fs::path ToPath(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return std::u8string(bytes.begin(), bytes.end());
}

TypedPath ReadTypedPath(const QString& text, const QString& shown_folder) {
  const bool at_home = text == "~" || text.startsWith("~/");
  const QString typed = at_home ? QDir::homePath() + text.mid(1) : text;
  // QDir::absoluteFilePath() would read ":name" as a resource of the program.
  const QString path = QDir::cleanPath(typed.startsWith('/') ? typed : shown_folder + '/' + typed);
  if (typed.trimmed().isEmpty() || path == shown_folder) {
    return Refused("Type a name for the file.");
  }
  const auto is_control = [](QChar c) { return c.category() == QChar::Other_Control; };
  if (std::any_of(path.begin(), path.end(), is_control)) {
    return Refused("A file name cannot contain line breaks or tabs. Type the name without them.");
  }
  if (TypeOf(path) == fs::file_type::directory) return {TypedPath::Kind::Folder, path, {}};
  const bool names_folder = typed.endsWith('/') || typed.endsWith("/.");
  const qsizetype name_start = path.lastIndexOf('/');
  const QString folder = names_folder ? path : path.left(std::max<qsizetype>(name_start, 1));
  const fs::file_type type = TypeOf(folder);
  const bool cannot_tell = type == fs::file_type::none && !names_folder;
  if (type == fs::file_type::directory || cannot_tell) return {TypedPath::Kind::File, path, {}};
  return Refused(FaultOf(type).arg(folder) + " Choose another folder.");
}

}  // namespace fundlet
