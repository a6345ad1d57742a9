<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep your Mac and iOS devices clean and fast.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AccessRow</name>
    <message>
        <source>Granted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not granted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grant…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AgentRowContent</name>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AgentsPage</name>
    <message>
        <source>Background items</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AllCleanView</name>
    <message>
        <source>All Clean!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found to clean in this module.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppDetail</name>
    <message>
        <source>Select an application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick an app to see its size and leftover files.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppDetailFooter</name>
    <message>
        <source>Uninstall</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppDetailHeader</name>
    <message>
        <source>App is currently running</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppParts</name>
    <message>
        <source>Application and leftovers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ApplicationMenu</name>
    <message>
        <source>Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppsList</name>
    <message>
        <source>Applications</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppsPane</name>
    <message>
        <source>Search apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only names are searched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are none in the application folders.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BackupRowContent</name>
    <message>
        <source>Delete backup of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BackupsCard</name>
    <message>
        <source>iOS Backups on This Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Old iTunes/Finder backups can take tens of gigabytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measuring backups…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No backups found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backups</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusySpinner</name>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>User Caches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Xcode Junk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temporary Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanedView</name>
    <message>
        <source>Hide Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanerModule</name>
    <message>
        <source>System Junk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caches, logs and leftover development junk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large &amp; Old Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find the files eating your disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove apps with all their leftovers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed up and maintain your Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find duplicate files and photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>iPhone &amp; iPad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean a connected iPhone or iPad</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleaningView</name>
    <message>
        <source>Cleaning…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Korvane</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DashboardHeader</name>
    <message>
        <source>Welcome to Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep your Mac — and soon your iPhone — clean and fast.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>Connected Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device tools not installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect an iPhone or iPad with a cable and tap Trust on the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected devices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Used space of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Devices</name>
    <message>
        <source>iOS %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 used of %2 — %3 free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>· last backup %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>iOS Device</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message numerus="yes">
        <source>%1 — %n copies, %2 each</source>
        <comment>%1 is the name of a file, %2 the size of each copy</comment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (original)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The listing of %1 is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>afcclient not found — install libimobiledevice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export failed for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export failed for %1; what lies there now could not be moved to the Trash: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopping it was cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>systemctl is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>systemctl failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not moved to the Trash: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>moved to the Trash, but it may still run until the next login: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not a Trash of this user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is a link; what it leads to is left alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” holds the Trash, and cannot be moved into it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”, the Trash of this volume, is not a folder of this user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was named to be removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is not a full path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The root of the file system is never removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” does not name an item but a way to one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is the home folder, or holds it, and is never removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is where a volume is mounted, and is never removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is a folder shared by all users, and is never removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A volume is mounted inside</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to flush: this machine keeps no DNS cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pkexec is missing, which asks for an administrator&apos;s password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is missing, which frees memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No search index is installed (localsearch, tracker3 or balooctl)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The request for an administrator&apos;s password was dismissed; nothing was changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An administrator&apos;s rights were not given; nothing was changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program that asks for an administrator&apos;s password is running (a polkit agent); nothing was changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An administrator&apos;s password could not be asked for: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command was ended by signal %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command failed with status %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FailuresList</name>
    <message>
        <source>Items that could not be removed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FullDiskAccessBanner</name>
    <message>
        <source>Grant Full Disk Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvane can only see part of your junk until you allow it in System Settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>Move files to Trash instead of deleting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask for confirmation before cleaning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IOSDeviceView</name>
    <message>
        <source>You won&apos;t be able to restore this device from this backup afterwards.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Show in File Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::AppListModel</name>
    <message numerus="yes">
        <source>%n leftover items</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::CleanedTexts</name>
    <message>
        <source>%1 cleaned</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln items moved to Trash or removed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln items could not be removed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::DashboardViewModel</name>
    <message>
        <source>%1 free of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::IOSDeviceViewModel</name>
    <message>
        <source>Install libimobiledevice to talk to iPhones and iPads:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete backup of %1?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::IOSMediaViewModel</name>
    <message numerus="yes">
        <source>%1 of %n folders</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Photos &amp; Videos on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n files selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exporting %n files to Downloads…</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files to Downloads.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files, %1 failed.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n files from %1?</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleting %n files…</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files, %1 failed.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::InstalledAppTexts</name>
    <message>
        <source>No leftover files were found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a usable identifier, no leftover files can be told to be this app’s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leftovers (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes the app for good and moves all leftovers to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Flatpak will remove the app for good: it can be installed again, but not be put back. %n leftover items will be moved to Trash.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes the app and all leftovers to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The app and %n leftover items will be moved to Trash.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::MaintenanceViewModel</name>
    <message>
        <source>Background Items (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ScanConfirmation</name>
    <message>
        <source>%1 will be moved to Trash. You can restore it from there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will be permanently deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ScanProgressTexts</name>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::ScanResultsModel</name>
    <message>
        <source>All files of this set are one file under several names: removing copies frees no space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another path of this set leads to this same file: cleaning one removes both.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::ScanViewModel</name>
    <message>
        <source>selected of %1 found</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::SettingsViewModel</name>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Korvane::TrayIcon</name>
    <message>
        <source>Open Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last cleanup: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Maintenance</name>
    <message>
        <source>Free Up RAM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purge inactive memory to relieve pressure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flush DNS Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fix stale DNS lookups and network glitches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reindex Spotlight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rebuild the search index from scratch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Agents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Agents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Daemons</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MaintenanceHeader</name>
    <message>
        <source>Launch agents and daemons that start automatically. Removing a user agent moves its file to Trash.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MaintenanceView</name>
    <message>
        <source>The launch agent file will be moved to Trash. It stops running after the next login.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaActions</name>
    <message>
        <source>Export Selected to Downloads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete from Device</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaBrowser</name>
    <message>
        <source>Camera roll</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaNotice</name>
    <message>
        <source>No media found in the camera roll.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaRow</name>
    <message>
        <source>open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaSection</name>
    <message>
        <source>Files in the camera roll, via USB. Deleting here is permanent — the device has no trash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading camera roll…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This permanently deletes the files from the device. It cannot be undone. Export anything you want to keep first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModuleGrid</name>
    <message>
        <source>Modules</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResultRow</name>
    <message>
        <source>Not selected by default — may be in use or needed by the system.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Deselect All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResultsList</name>
    <message>
        <source>Findings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResultsView</name>
    <message>
        <source>Clean</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScanView</name>
    <message>
        <source>Start Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean the selected items?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScanningApps</name>
    <message>
        <source>Scanning applications…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScanningView</name>
    <message>
        <source>Scanning…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SidebarHeader</name>
    <message>
        <source>Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StorageOverviewCard</name>
    <message>
        <source>Startup Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Used space of the startup disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TaskCard</name>
    <message>
        <source>Run</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TaskGrid</name>
    <message>
        <source>Maintenance tasks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TaskStatus</name>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UninstallerView</name>
    <message>
        <source>Scan Applications</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
