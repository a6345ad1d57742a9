<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Keep your Mac and iOS devices clean and fast.</source>
        <translation>Hält Mac und iOS-Geräte sauber und schnell.</translation>
    </message>
</context>
<context>
    <name>AccessRow</name>
    <message>
        <source>Granted</source>
        <translation>Gewährt</translation>
    </message>
    <message>
        <source>Not granted</source>
        <translation>Nicht gewährt</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>Festplattenvollzugriff</translation>
    </message>
    <message>
        <source>Grant…</source>
        <translation>Gewähren …</translation>
    </message>
</context>
<context>
    <name>AgentRowContent</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>AgentsPage</name>
    <message>
        <source>Background items</source>
        <translation>Hintergrundobjekte</translation>
    </message>
</context>
<context>
    <name>AllCleanView</name>
    <message>
        <source>All Clean!</source>
        <translation>Alles sauber!</translation>
    </message>
    <message>
        <source>Nothing found to clean in this module.</source>
        <translation>In diesem Modul wurde nichts zum Aufräumen gefunden.</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>Erneut suchen</translation>
    </message>
</context>
<context>
    <name>AppDetail</name>
    <message>
        <source>Select an application</source>
        <translation>Programm auswählen</translation>
    </message>
    <message>
        <source>Pick an app to see its size and leftover files.</source>
        <translation>Wählen Sie ein Programm, um seine Größe und seine Restdateien zu sehen.</translation>
    </message>
</context>
<context>
    <name>AppDetailFooter</name>
    <message>
        <source>Uninstall</source>
        <translation>Deinstallieren</translation>
    </message>
</context>
<context>
    <name>AppDetailHeader</name>
    <message>
        <source>App is currently running</source>
        <translation>Das Programm läuft gerade</translation>
    </message>
</context>
<context>
    <name>AppParts</name>
    <message>
        <source>Application and leftovers</source>
        <translation>Programm und Reste</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Programm</translation>
    </message>
</context>
<context>
    <name>ApplicationMenu</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
</context>
<context>
    <name>AppsList</name>
    <message>
        <source>Applications</source>
        <translation>Programme</translation>
    </message>
</context>
<context>
    <name>AppsPane</name>
    <message>
        <source>Search apps</source>
        <translation>Programme suchen</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Keine passenden Programme</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>Keine Programme gefunden</translation>
    </message>
    <message>
        <source>Only names are searched.</source>
        <translation>Es werden nur Namen durchsucht.</translation>
    </message>
    <message>
        <source>There are none in the application folders.</source>
        <translation>Die Programmordner enthalten keine.</translation>
    </message>
</context>
<context>
    <name>BackupRowContent</name>
    <message>
        <source>Delete backup of %1</source>
        <translation>Backup von „%1“ löschen</translation>
    </message>
</context>
<context>
    <name>BackupsCard</name>
    <message>
        <source>iOS Backups on This Mac</source>
        <translation>iOS-Backups auf diesem Mac</translation>
    </message>
    <message>
        <source>Old iTunes/Finder backups can take tens of gigabytes.</source>
        <translation>Alte iTunes-/Finder-Backups können Dutzende Gigabyte belegen.</translation>
    </message>
    <message>
        <source>Measuring backups…</source>
        <translation>Größe der Backups wird ermittelt …</translation>
    </message>
    <message>
        <source>No backups found.</source>
        <translation>Keine Backups gefunden.</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Backups</translation>
    </message>
</context>
<context>
    <name>BusySpinner</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>Button</name>
    <message>
        <source>Unavailable</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>%1, unavailable</source>
        <translation>%1, nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>User Caches</source>
        <translation>Benutzer-Caches</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Protokolldateien</translation>
    </message>
    <message>
        <source>Xcode Junk</source>
        <translation>Xcode-Müll</translation>
    </message>
    <message>
        <source>Temporary Files</source>
        <translation>Temporäre Dateien</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Große Dateien</translation>
    </message>
</context>
<context>
    <name>CleanedView</name>
    <message>
        <source>Hide Details</source>
        <translation>Details ausblenden</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Details einblenden</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>Erneut suchen</translation>
    </message>
</context>
<context>
    <name>CleanerModule</name>
    <message>
        <source>System Junk</source>
        <translation>Systemmüll</translation>
    </message>
    <message>
        <source>Caches, logs and leftover development junk</source>
        <translation>Caches, Protokolle und Entwicklungsreste</translation>
    </message>
    <message>
        <source>Large &amp; Old Files</source>
        <translation>Große und alte Dateien</translation>
    </message>
    <message>
        <source>Find the files eating your disk</source>
        <translation>Dateien finden, die viel Platz belegen</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>Deinstallation</translation>
    </message>
    <message>
        <source>Remove apps with all their leftovers</source>
        <translation>Programme mit allen Resten entfernen</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>Speed up and maintain your Mac</source>
        <translation>Den Mac beschleunigen und pflegen</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Find duplicate files and photos</source>
        <translation>Doppelte Dateien und Fotos finden</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad</source>
        <translation>iPhone &amp; iPad</translation>
    </message>
    <message>
        <source>Clean a connected iPhone or iPad</source>
        <translation>Ein verbundenes iPhone oder iPad aufräumen</translation>
    </message>
</context>
<context>
    <name>CleaningView</name>
    <message>
        <source>Cleaning…</source>
        <translation>Wird aufgeräumt …</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
</context>
<context>
    <name>DashboardHeader</name>
    <message>
        <source>Welcome to Korvane</source>
        <translation>Willkommen bei Korvane</translation>
    </message>
    <message>
        <source>Keep your Mac — and soon your iPhone — clean and fast.</source>
        <translation>Hält den Mac – und bald das iPhone – sauber und schnell.</translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Dashboard</source>
        <translation>Übersicht</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>Connected Device</source>
        <translation>Verbundenes Gerät</translation>
    </message>
    <message>
        <source>Device tools not installed</source>
        <translation>Gerätetools nicht installiert</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>Kein Gerät verbunden</translation>
    </message>
    <message>
        <source>Connect an iPhone or iPad with a cable and tap Trust on the device.</source>
        <translation>Verbinden Sie ein iPhone oder iPad per Kabel und tippen Sie auf dem Gerät auf „Vertrauen“.</translation>
    </message>
    <message>
        <source>Connected devices</source>
        <translation>Verbundene Geräte</translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Used space of %1</source>
        <translation>Belegter Platz von „%1“</translation>
    </message>
</context>
<context>
    <name>Devices</name>
    <message>
        <source>iOS %1</source>
        <translation>iOS %1</translation>
    </message>
    <message>
        <source>%1 used of %2 — %3 free</source>
        <translation>%1 von %2 belegt – %3 frei</translation>
    </message>
    <message>
        <source>· last backup %1</source>
        <translation>· letztes Backup %1</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d. MMM yyyy</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>iOS Device</source>
        <translation>iOS-Gerät</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message numerus="yes">
        <source>%1 — %n copies, %2 each</source>
        <comment>%1 is the name of a file, %2 the size of each copy</comment>
        <translation>
            <numerusform>%1 – %n Kopie zu %2</numerusform>
            <numerusform>%1 – %n Kopien zu je %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (original)</source>
        <translation>%1 (Original)</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The listing of %1 is too long</source>
        <translation>Die Liste von %1 ist zu lang</translation>
    </message>
    <message>
        <source>afcclient not found — install libimobiledevice</source>
        <translation>afcclient nicht gefunden – libimobiledevice installieren</translation>
    </message>
    <message>
        <source>Export failed for %1</source>
        <translation>Export von %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Export failed for %1; what lies there now could not be moved to the Trash: %2</source>
        <translation>Export von %1 fehlgeschlagen; was jetzt dort liegt, konnte nicht in den Papierkorb bewegt werden: %2</translation>
    </message>
    <message>
        <source>stopping it was cancelled</source>
        <translation>das Anhalten wurde abgebrochen</translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation>%1 hat zu lange gedauert</translation>
    </message>
    <message>
        <source>systemctl is missing</source>
        <translation>systemctl fehlt</translation>
    </message>
    <message>
        <source>systemctl failed</source>
        <translation>systemctl ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>not moved to the Trash: %1</source>
        <translation>nicht in den Papierkorb bewegt: %1</translation>
    </message>
    <message>
        <source>moved to the Trash, but it may still run until the next login: %1</source>
        <translation>in den Papierkorb bewegt, läuft aber womöglich bis zur nächsten Anmeldung weiter: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>“%1” is not a Trash of this user.</source>
        <translation>„%1“ ist kein Papierkorb dieses Benutzers.</translation>
    </message>
    <message>
        <source>“%1” is a link; what it leads to is left alone.</source>
        <translation>„%1“ ist ein Link; sein Ziel bleibt unberührt.</translation>
    </message>
    <message>
        <source>“%1” holds the Trash, and cannot be moved into it.</source>
        <translation>„%1“ enthält den Papierkorb und kann nicht hineinbewegt werden.</translation>
    </message>
    <message>
        <source>“%1”, the Trash of this volume, is not a folder of this user.</source>
        <translation>„%1“, der Papierkorb dieses Volumes, ist kein Ordner dieses Benutzers.</translation>
    </message>
    <message>
        <source>Nothing was named to be removed.</source>
        <translation>Es wurde nichts zum Entfernen genannt.</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>„%1“ kann kein Dateiname sein.</translation>
    </message>
    <message>
        <source>“%1” is not a full path.</source>
        <translation>„%1“ ist kein vollständiger Pfad.</translation>
    </message>
    <message>
        <source>The root of the file system is never removed.</source>
        <translation>Das Wurzelverzeichnis des Dateisystems wird nie entfernt.</translation>
    </message>
    <message>
        <source>“%1” does not name an item but a way to one.</source>
        <translation>„%1“ benennt kein Objekt, sondern einen Weg dorthin.</translation>
    </message>
    <message>
        <source>“%1” is the home folder, or holds it, and is never removed.</source>
        <translation>„%1“ ist der Benutzerordner oder enthält ihn und wird nie entfernt.</translation>
    </message>
    <message>
        <source>“%1” is where a volume is mounted, and is never removed.</source>
        <translation>An „%1“ ist ein Volume eingehängt; es wird nie entfernt.</translation>
    </message>
    <message>
        <source>“%1” is a folder shared by all users, and is never removed.</source>
        <translation>„%1“ ist ein gemeinsamer Ordner aller Benutzer und wird nie entfernt.</translation>
    </message>
    <message>
        <source>A volume is mounted inside</source>
        <translation>Darin ist ein Volume eingehängt</translation>
    </message>
    <message>
        <source>There is nothing to flush: this machine keeps no DNS cache</source>
        <translation>Nichts zu leeren: Dieser Rechner führt keinen DNS-Cache</translation>
    </message>
    <message>
        <source>pkexec is missing, which asks for an administrator&apos;s password</source>
        <translation>Es fehlt pkexec, das nach dem Administratorpasswort fragt</translation>
    </message>
    <message>
        <source>%1 is missing, which frees memory</source>
        <translation>Es fehlt %1, das Speicher freigibt</translation>
    </message>
    <message>
        <source>No search index is installed (localsearch, tracker3 or balooctl)</source>
        <translation>Es ist kein Suchindex installiert (localsearch, tracker3 oder balooctl)</translation>
    </message>
    <message>
        <source>The request for an administrator&apos;s password was dismissed; nothing was changed</source>
        <translation>Die Abfrage des Administratorpassworts wurde abgebrochen; nichts wurde geändert</translation>
    </message>
    <message>
        <source>An administrator&apos;s rights were not given; nothing was changed</source>
        <translation>Administratorrechte wurden nicht gewährt; nichts wurde geändert</translation>
    </message>
    <message>
        <source>No program that asks for an administrator&apos;s password is running (a polkit agent); nothing was changed</source>
        <translation>Es läuft kein Programm, das nach dem Administratorpasswort fragt (ein Polkit-Agent); nichts wurde geändert</translation>
    </message>
    <message>
        <source>An administrator&apos;s password could not be asked for: %1</source>
        <translation>Das Administratorpasswort konnte nicht abgefragt werden: %1</translation>
    </message>
    <message>
        <source>The command failed: %1</source>
        <translation>Der Befehl ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The command was ended by signal %1</source>
        <translation>Der Befehl wurde durch Signal %1 beendet</translation>
    </message>
    <message>
        <source>The command failed with status %1</source>
        <translation>Der Befehl ist mit Status %1 fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>FailuresList</name>
    <message>
        <source>Items that could not be removed</source>
        <translation>Objekte, die nicht entfernt werden konnten</translation>
    </message>
</context>
<context>
    <name>FullDiskAccessBanner</name>
    <message>
        <source>Grant Full Disk Access</source>
        <translation>Festplattenvollzugriff gewähren</translation>
    </message>
    <message>
        <source>Korvane can only see part of your junk until you allow it in System Settings.</source>
        <translation>Korvane sieht nur einen Teil der unnötigen Dateien, bis Sie es in den Systemeinstellungen erlauben.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>Move files to Trash instead of deleting</source>
        <translation>Dateien in den Papierkorb bewegen statt löschen</translation>
    </message>
    <message>
        <source>Ask for confirmation before cleaning</source>
        <translation>Vor dem Aufräumen nachfragen</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Berechtigungen</translation>
    </message>
</context>
<context>
    <name>IOSDeviceView</name>
    <message>
        <source>You won&apos;t be able to restore this device from this backup afterwards.</source>
        <translation>Danach können Sie dieses Gerät nicht mehr aus diesem Backup wiederherstellen.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder zeigen</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Im Dateimanager anzeigen</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Pfad kopieren</translation>
    </message>
</context>
<context>
    <name>Korvane::AppListModel</name>
    <message numerus="yes">
        <source>%n leftover items</source>
        <translation>
            <numerusform>%n Restobjekt</numerusform>
            <numerusform>%n Restobjekte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::CleanedTexts</name>
    <message>
        <source>%1 cleaned</source>
        <translation>%1 aufgeräumt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items moved to Trash or removed</source>
        <translation>
            <numerusform>%Ln Objekt in den Papierkorb bewegt oder entfernt</numerusform>
            <numerusform>%Ln Objekte in den Papierkorb bewegt oder entfernt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln items could not be removed</source>
        <translation>
            <numerusform>%Ln Objekt konnte nicht entfernt werden</numerusform>
            <numerusform>%Ln Objekte konnten nicht entfernt werden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::DashboardViewModel</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 von %2 frei</translation>
    </message>
</context>
<context>
    <name>Korvane::IOSDeviceViewModel</name>
    <message>
        <source>Install libimobiledevice to talk to iPhones and iPads:
%1</source>
        <translation>Installieren Sie libimobiledevice, um mit iPhones und iPads zu kommunizieren:
%1</translation>
    </message>
    <message>
        <source>Delete backup of %1?</source>
        <translation>Backup von „%1“ löschen?</translation>
    </message>
</context>
<context>
    <name>Korvane::IOSMediaViewModel</name>
    <message numerus="yes">
        <source>%1 of %n folders</source>
        <translation>
            <numerusform>%1 von %n Ordner</numerusform>
            <numerusform>%1 von %n Ordnern</numerusform>
        </translation>
    </message>
    <message>
        <source>Photos &amp; Videos on %1</source>
        <translation>Fotos und Videos auf „%1“</translation>
    </message>
    <message numerus="yes">
        <source>%n files selected</source>
        <translation>
            <numerusform>%n Datei ausgewählt</numerusform>
            <numerusform>%n Dateien ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exporting %n files to Downloads…</source>
        <translation>
            <numerusform>%n Datei wird nach „Downloads“ exportiert …</numerusform>
            <numerusform>%n Dateien werden nach „Downloads“ exportiert …</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files to Downloads.</source>
        <translation>
            <numerusform>%n Datei nach „Downloads“ exportiert.</numerusform>
            <numerusform>%n Dateien nach „Downloads“ exportiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files, %1 failed.</source>
        <translation>
            <numerusform>%n Datei exportiert, %1 fehlgeschlagen.</numerusform>
            <numerusform>%n Dateien exportiert, %1 fehlgeschlagen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n files from %1?</source>
        <translation>
            <numerusform>%n Datei von „%1“ löschen?</numerusform>
            <numerusform>%n Dateien von „%1“ löschen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleting %n files…</source>
        <translation>
            <numerusform>%n Datei wird gelöscht …</numerusform>
            <numerusform>%n Dateien werden gelöscht …</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files.</source>
        <translation>
            <numerusform>%n Datei gelöscht.</numerusform>
            <numerusform>%n Dateien gelöscht.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files, %1 failed.</source>
        <translation>
            <numerusform>%n Datei gelöscht, %1 fehlgeschlagen.</numerusform>
            <numerusform>%n Dateien gelöscht, %1 fehlgeschlagen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::InstalledAppTexts</name>
    <message>
        <source>No leftover files were found.</source>
        <translation>Es wurden keine Restdateien gefunden.</translation>
    </message>
    <message>
        <source>Without a usable identifier, no leftover files can be told to be this app’s.</source>
        <translation>Ohne brauchbare Kennung lassen sich diesem Programm keine Restdateien zuordnen.</translation>
    </message>
    <message>
        <source>Leftovers (%1)</source>
        <translation>Reste (%1)</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>%1 deinstallieren?</translation>
    </message>
    <message>
        <source>Removes the app for good and moves all leftovers to Trash</source>
        <translation>Entfernt das Programm endgültig und bewegt alle Reste in den Papierkorb</translation>
    </message>
    <message numerus="yes">
        <source>Flatpak will remove the app for good: it can be installed again, but not be put back. %n leftover items will be moved to Trash.</source>
        <translation>
            <numerusform>Flatpak entfernt das Programm endgültig: Es kann neu installiert, aber nicht zurückgelegt werden. %n Restobjekt wird in den Papierkorb bewegt.</numerusform>
            <numerusform>Flatpak entfernt das Programm endgültig: Es kann neu installiert, aber nicht zurückgelegt werden. %n Restobjekte werden in den Papierkorb bewegt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Deinstallieren</translation>
    </message>
    <message>
        <source>Removes the app and all leftovers to Trash</source>
        <translation>Bewegt das Programm und alle Reste in den Papierkorb</translation>
    </message>
    <message numerus="yes">
        <source>The app and %n leftover items will be moved to Trash.</source>
        <translation>
            <numerusform>Das Programm und %n Restobjekt werden in den Papierkorb bewegt.</numerusform>
            <numerusform>Das Programm und %n Restobjekte werden in den Papierkorb bewegt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>Korvane::MaintenanceViewModel</name>
    <message>
        <source>Background Items (%1)</source>
        <translation>Hintergrundobjekte (%1)</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>%1 entfernen?</translation>
    </message>
</context>
<context>
    <name>Korvane::MenuBarViewModel</name>
    <message>
        <source>Last cleanup: %1</source>
        <translation>Zuletzt aufgeräumt: %1</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanConfirmation</name>
    <message>
        <source>%1 will be moved to Trash. You can restore it from there.</source>
        <translation>%1 werden in den Papierkorb bewegt. Von dort können Sie alles zurücklegen.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>%1 will be permanently deleted.</source>
        <translation>%1 werden endgültig gelöscht.</translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation>Endgültig löschen</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanProgressTexts</name>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>%Ln gefunden</numerusform>
            <numerusform>%Ln gefunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::ScanResultsModel</name>
    <message>
        <source>All files of this set are one file under several names: removing copies frees no space.</source>
        <translation>Alle Dateien dieser Gruppe sind eine Datei unter mehreren Namen: Kopien zu entfernen gibt keinen Platz frei.</translation>
    </message>
    <message>
        <source>Another path of this set leads to this same file: cleaning one removes both.</source>
        <translation>Ein anderer Pfad dieser Gruppe führt zu derselben Datei: Wird einer aufgeräumt, verschwinden beide.</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanShares</name>
    <message numerus="yes">
        <source>%n others</source>
        <translation>
            <numerusform>%n weitere</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>category: size</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanViewModel</name>
    <message>
        <source>selected of %1 found</source>
        <translation>von %1 gefundenen ausgewählt</translation>
    </message>
</context>
<context>
    <name>Korvane::SettingsViewModel</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>Korvane::TrayIcon</name>
    <message>
        <source>Open Korvane</source>
        <translation>Korvane öffnen</translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation>Systemmüll suchen</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Korvane beenden</translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Free Up RAM</source>
        <translation>RAM freigeben</translation>
    </message>
</context>
<context>
    <name>Maintenance</name>
    <message>
        <source>Free Up RAM</source>
        <translation>RAM freigeben</translation>
    </message>
    <message>
        <source>Purge inactive memory to relieve pressure</source>
        <translation>Inaktiven Speicher freigeben und das System entlasten</translation>
    </message>
    <message>
        <source>Flush DNS Cache</source>
        <translation>DNS-Cache leeren</translation>
    </message>
    <message>
        <source>Fix stale DNS lookups and network glitches</source>
        <translation>Veraltete DNS-Antworten und Netzwerkstörungen beheben</translation>
    </message>
    <message>
        <source>Reindex Spotlight</source>
        <translation>Spotlight neu indizieren</translation>
    </message>
    <message>
        <source>Rebuild the search index from scratch</source>
        <translation>Den Suchindex von Grund auf neu aufbauen</translation>
    </message>
    <message>
        <source>User Agents</source>
        <translation>Benutzer-Agenten</translation>
    </message>
    <message>
        <source>System Agents</source>
        <translation>System-Agenten</translation>
    </message>
    <message>
        <source>System Daemons</source>
        <translation>System-Daemons</translation>
    </message>
</context>
<context>
    <name>MaintenanceHeader</name>
    <message>
        <source>Launch agents and daemons that start automatically. Removing a user agent moves its file to Trash.</source>
        <translation>Agenten und Daemons, die automatisch starten. Wird ein Benutzer-Agent entfernt, kommt seine Datei in den Papierkorb.</translation>
    </message>
</context>
<context>
    <name>MaintenanceView</name>
    <message>
        <source>The launch agent file will be moved to Trash. It stops running after the next login.</source>
        <translation>Die Datei des Agenten wird in den Papierkorb bewegt. Nach der nächsten Anmeldung läuft er nicht mehr.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
</context>
<context>
    <name>MediaActions</name>
    <message>
        <source>Export Selected to Downloads</source>
        <translation>Auswahl nach „Downloads“ exportieren</translation>
    </message>
    <message>
        <source>Delete from Device</source>
        <translation>Vom Gerät löschen</translation>
    </message>
</context>
<context>
    <name>MediaBrowser</name>
    <message>
        <source>Camera roll</source>
        <translation>Aufnahmen</translation>
    </message>
</context>
<context>
    <name>MediaNotice</name>
    <message>
        <source>No media found in the camera roll.</source>
        <translation>In den Aufnahmen wurden keine Medien gefunden.</translation>
    </message>
</context>
<context>
    <name>MediaRow</name>
    <message>
        <source>open</source>
        <translation>geöffnet</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>geschlossen</translation>
    </message>
</context>
<context>
    <name>MediaSection</name>
    <message>
        <source>Files in the camera roll, via USB. Deleting here is permanent — the device has no trash.</source>
        <translation>Dateien der Aufnahmen, über USB. Hier wird endgültig gelöscht – das Gerät hat keinen Papierkorb.</translation>
    </message>
    <message>
        <source>Reading camera roll…</source>
        <translation>Aufnahmen werden gelesen …</translation>
    </message>
    <message>
        <source>This permanently deletes the files from the device. It cannot be undone. Export anything you want to keep first.</source>
        <translation>Die Dateien werden endgültig vom Gerät gelöscht. Das kann nicht rückgängig gemacht werden. Exportieren Sie zuerst alles, was Sie behalten möchten.</translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation>Endgültig löschen</translation>
    </message>
</context>
<context>
    <name>MenuBarView</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Open Korvane</source>
        <translation>Korvane öffnen</translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation>Systemmüll suchen</translation>
    </message>
    <message>
        <source>Free Up RAM</source>
        <translation>RAM freigeben</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Korvane beenden</translation>
    </message>
</context>
<context>
    <name>ModuleGrid</name>
    <message>
        <source>Modules</source>
        <translation>Module</translation>
    </message>
</context>
<context>
    <name>ResultRow</name>
    <message>
        <source>Not selected by default — may be in use or needed by the system.</source>
        <translation>Nicht vorausgewählt – wird möglicherweise verwendet oder vom System gebraucht.</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Deselect All</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Erneut suchen</translation>
    </message>
</context>
<context>
    <name>ResultsList</name>
    <message>
        <source>Findings</source>
        <translation>Ergebnisse</translation>
    </message>
</context>
<context>
    <name>ResultsView</name>
    <message>
        <source>Clean</source>
        <translation>Aufräumen</translation>
    </message>
</context>
<context>
    <name>ScanView</name>
    <message>
        <source>Start Scan</source>
        <translation>Suche starten</translation>
    </message>
    <message>
        <source>Clean the selected items?</source>
        <translation>Ausgewählte Objekte aufräumen?</translation>
    </message>
</context>
<context>
    <name>ScanningApps</name>
    <message>
        <source>Scanning applications…</source>
        <translation>Programme werden gesucht …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ScanningView</name>
    <message>
        <source>Scanning…</source>
        <translation>Wird gesucht …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
</context>
<context>
    <name>ShareBar</name>
    <message>
        <source>Shares of the categories</source>
        <translation>Anteile der Kategorien</translation>
    </message>
</context>
<context>
    <name>ShareLegend</name>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Modules</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Aufräumen</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
</context>
<context>
    <name>SidebarHeader</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Application menu</source>
        <translation>Programmmenü</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation>Strg+,</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Korvane beenden</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Strg+Q</translation>
    </message>
</context>
<context>
    <name>StorageCaption</name>
    <message>
        <source>Used</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
</context>
<context>
    <name>StorageOverviewCard</name>
    <message>
        <source>Startup Disk</source>
        <translation>Startvolume</translation>
    </message>
    <message>
        <source>Used space of the startup disk</source>
        <translation>Belegter Platz des Startvolumes</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Intelligente Suche</translation>
    </message>
</context>
<context>
    <name>TaskCard</name>
    <message>
        <source>Run</source>
        <translation>Ausführen</translation>
    </message>
</context>
<context>
    <name>TaskGrid</name>
    <message>
        <source>Maintenance tasks</source>
        <translation>Wartungsaufgaben</translation>
    </message>
</context>
<context>
    <name>TaskStatus</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>UninstallerView</name>
    <message>
        <source>Scan Applications</source>
        <translation>Programme suchen</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Korvane is already running, but it does not answer.</source>
        <translation>Korvane läuft bereits, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Wait until it has finished what it is doing, or end it, and open Korvane again.</source>
        <translation>Warten Sie, bis es fertig ist, oder beenden Sie es, und öffnen Sie Korvane dann erneut.</translation>
    </message>
</context>
</TS>
