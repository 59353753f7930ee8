#include "tovuutil/files/detail/ErrnoText.h"

#include <cerrno>

// The texts are Windows-1252 bytes; misspellings, English parts and trailing
// blanks are the messages' own and stay as they are.

namespace tovu {
namespace detail {

namespace {

struct ErrnoEntry {
    int code;
    char const* text;
};

constexpr ErrnoEntry kChangeDirTexts[] = {
    {ENOENT, "Der angegebene Pfadname existiert nicht."},
    {EIO, "Ein Ein-/Ausgabefehler ist aufgetreten."},
    {ENOMEM, "Das Betriebssystem verf\xFCgt nicht \xFC" "ber ausreichend Speicher, um die Anweisung auszuf\xFChren."},
    {EACCES, "Dem Prozess ist nicht erlaubt, eine Komponente von Pfad zu durchsuchen."},
    {EFAULT, "Pfad zeigt auf einen Speicherbereich au\xDF" "erhalb des erlaubten Adressraums des Prozesses."},
    {ENOTDIR, "Eine Komponente von Pfad ist kein Verzeichnis."},
    {ENAMETOOLONG, "Pfad ist zu lang."},
};

constexpr ErrnoEntry kDeleteFileTexts[] = {
    {EPERM, "Das Verzeichnis, welches Pfadname enth\xE4lt, hat das sticky-bit (S_ISVTX) gesetzt und die aktuell g\xFCltige uid des Prozesses ist weder die uid der zu l\xF6schenden Datei noch die uid des Verzeichnisses, das die Datei enth\xE4lt "},
    {ENOENT, "A directory component in pathname does not exist or is a dangling symbolic link. "},
    {ENOMEM, "Insufficient kernel memory was available. "},
    {EACCES, "Schreibzugriff auf das Verzeichnis, das Pfadname enth\xE4lt, ist f\xFCr die aktuell g\xFCltige uid des Prozesses nicht erlaubt, oder eines der Verzeichnisse in Pfadname erlaubt keinen Such- (Ausf\xFChr-) zugriff."},
    {EFAULT, "Pfadname liegt au\xDF" "erhalb Ihres erreichbaren Adressraumes."},
    {ENOTDIR, "A component used as a directory in pathname is not, in fact, a directory. "},
    {EROFS, "pathname refers to a file on a read-only filesystem. "},
    {ENAMETOOLONG, "Pfadname ist zu lang."},
};

constexpr ErrnoEntry kDeleteDirTexts[] = {
    {ENOENT, "Ein Teil des Verzeichnisses in pathname existiert nicht, oder ist ein kaputter symbolischer Link."},
    {EIO, "A physical I/O error has occurred."},
    {EACCES, "Schreibzugriff auf das Verzeichnis, welches pathname enth\xE4llt, ist f\xFCr die effektive UID des Prozesses nicht erlaubt, oder eines der Verzeichnisse in pathname gibt kein Durchsuch-Rechte (execute)."},
    {EBUSY, "pathname ist das aktuelle Verzeichnis oder das Stammverzeichnis eines Prozesses."},
    {EEXIST, "pathname enth\xE4llt andere Eintr\xE4ge als . und .. (das Verzeichnis ist nicht leer). "},
    {ENOTEMPTY, "pathname enth\xE4llt andere Eintr\xE4ge als . und .. (das Verzeichnis ist nicht leer). "},
    {ENOTDIR, "pathname, oder ein als Verzeichnis benutzter Teil von pathname, ist kein Verzeichnis."},
    {EINVAL, "The path argument contains a last component that is dot."},
    {EROFS, "pathname verweist auf eine Datei auf einem nur-lesbaren Dateisystem."},
    {ENAMETOOLONG, "pathname ist zu lang."},
};

constexpr ErrnoEntry kFileAccessTexts[] = {
    {ENOENT, "Ein Teil aus den Verzeichnissen in Pfadname existiert nicht oder ist ein schlackernder symbolischer Link."},
    {EIO, "Ein E/A Fehler ist aufgetreten."},
    {ENOMEM, "Es ist nicht ausreichend freier Kernel-Speicher verf\xFCgbar."},
    {EACCES, "Der gew\xFCnschte Zugriff w\xFCrde verboten werden, entweder auf die Datei selbst oder auf eines der Verzichnisse in pathname."},
    {EFAULT, "Pfadname liegt au\xDF" "erhalb Ihres erreichbaren Adressraumes."},
    {ENOTDIR, "Ein Teil in Pfadname , welcher als Verzeichnis benutzt wird, ist kein Verzeichnis."},
    {EINVAL, "mode was incorrectly specified."},
    {EROFS, "Pfadname verweist auf ein Verzeichnis eines Nur-Lese-Dateisystems."},
    {ENAMETOOLONG, "Pfadname ist zu lang."},
};

constexpr ErrnoEntry kChangeModeTexts[] = {
    {EPERM, "Die effektive Benutzerkennung ist weder null, noch entspricht sie dem Eigent\xFCmer der Datei."},
    {ENOENT, "Der angegebene Pfadname existiert nicht."},
    {EIO, "Ein Ein-/Ausgabefehler ist aufgetreten."},
    {EBADF, "Filedescriptor ist kein g\xFCltiger Dateideskriptor. "},
    {ENOMEM, "Das Betriebssystem verf\xFCgt nicht \xFC" "ber ausreichend Speicher, um die Anweisung auszuf\xFChren."},
    {EACCES, "Dem Prozess ist nicht erlaubt, eine Komponente von Pfad zu durchsuchen."},
    {EFAULT, "Pfad zeigt auf einen Speicherbereich au\xDF" "erhalb des erlaubten Adressraums des Prozesses."},
    {ENOTDIR, "Eine Komponente von Pfad ist kein Verzeichnis."},
    {EROFS, "Die angegebene Datei befindet sich auf einem Dateisystem, das nur lesbar ist."},
    {ENAMETOOLONG, "Pfad ist zu lang."},
};

constexpr ErrnoEntry kMakeDirTexts[] = {
    {EPERM, "Das Dateisystem, das pathname enth\xE4lt, unterst\xFCtzt nicht das Erstellen von Verzeichnissen."},
    {ENOENT, "Eine Komponente in pathname existiert nicht oder verweist symbolisch auf ein nicht existierendes Objekt."},
    {ENOMEM, "Dem Kernel steht zuwenig Speicher zur Verf\xFCgung."},
    {EACCES, "Das \xFC" "bergeordnete Verzeichnis gibt dem Prozess keine Schreibberechtigung oder eines der Verzeichnisse in pathname erlaubt keine Suche (-x-)."},
    {EFAULT, "pathname zeigt auf Speicher au\xDF" "erhalb des adressierbaren Bereichs."},
    {EEXIST, "pathname existiert bereits (nicht unbedingt als Verzeichnis). Das schlie\xDFt den Fall ein, dass pathname ein symbolischer Verweis ist, gleichg\xFCltig ob das referenzierte Objekt existiert oder nicht."},
    {ENOTDIR, "Eine Komponente in pathname, die als Verzeichnis benutzt wurde, ist gar kein Verzeichnis."},
    {ENOSPC, "Auf dem Ger\xE4t, das pathname enth\xE4lt, ist entweder nicht mehr genug Platz f\xFCr ein neues Verzeichnis oder die Disk-Quota des Benutzer ist bereits ersch\xF6pft."},
    {EROFS, "pathname zeigt auf ein schreibgesch\xFCtztes Dateisystem."},
    {ENAMETOOLONG, "pathname ist zu lang."},
};

template <std::size_t N>
char const* lookUp(ErrnoEntry const (&table)[N], int code)
{
    for (ErrnoEntry const& entry : table)
        if (entry.code == code)
            return entry.text;
    return nullptr;
}

} // namespace

char const kFileMissing[] = "Die Datei '%1' existiert nicht.";
char const kFileExists[] = "Die Datei '%1' existiert bereits und kann daher nicht \xFC" "berschrieben werden.";
char const kCannotOpen[] = "Datei kann nicht ge\xF6" "ffnet werden.";
char const kNotDeleted[] = "Vermutlich konnte die Datei nicht gel\xF6scht werden.";
char const kNotRead[] = "Vermutlich konnte die Datei nicht gelesen werden.";
char const kNotWritten[] = "Vermutlich konnte die Datei nicht geschrieben werden.";
char const kPathIsFile[] = "Der Pfad '%1' existiert bereits als Datei.";
char const kUnknownException[] = "Unbekanter Ausnahmefehler. ";

std::string errnoText(ErrnoTable table, int code)
{
    char const* text = nullptr;
    switch (table) {
    case ErrnoTable::ChangeDir:
        text = lookUp(kChangeDirTexts, code);
        break;
    case ErrnoTable::DeleteFile:
        text = lookUp(kDeleteFileTexts, code);
        break;
    case ErrnoTable::DeleteDir:
        text = lookUp(kDeleteDirTexts, code);
        break;
    case ErrnoTable::FileAccess:
        text = lookUp(kFileAccessTexts, code);
        break;
    case ErrnoTable::ChangeMode:
        text = lookUp(kChangeModeTexts, code);
        break;
    case ErrnoTable::MakeDir:
        text = lookUp(kMakeDirTexts, code);
        break;
    }
    if (text != nullptr)
        return text;
    return "Unbekannter Fehler.(" + std::to_string(code) + ")";
}

} // namespace detail
} // namespace tovu
