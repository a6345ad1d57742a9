<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Keep your Mac and iOS devices clean and fast.</source>
        <translation>让 Mac 和 iOS 设备保持干净、快速。</translation>
    </message>
</context>
<context>
    <name>AccessRow</name>
    <message>
        <source>Granted</source>
        <translation>已授权</translation>
    </message>
    <message>
        <source>Not granted</source>
        <translation>未授权</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>完全磁盘访问权限</translation>
    </message>
    <message>
        <source>Grant…</source>
        <translation>授权…</translation>
    </message>
</context>
<context>
    <name>AgentRowContent</name>
    <message>
        <source>Remove %1</source>
        <translation>移除“%1”</translation>
    </message>
</context>
<context>
    <name>AgentsPage</name>
    <message>
        <source>Background items</source>
        <translation>后台项目</translation>
    </message>
</context>
<context>
    <name>AllCleanView</name>
    <message>
        <source>All Clean!</source>
        <translation>已经很干净了！</translation>
    </message>
    <message>
        <source>Nothing found to clean in this module.</source>
        <translation>此模块中没有可清理的内容。</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>重新扫描</translation>
    </message>
</context>
<context>
    <name>AppDetail</name>
    <message>
        <source>Select an application</source>
        <translation>选择应用程序</translation>
    </message>
    <message>
        <source>Pick an app to see its size and leftover files.</source>
        <translation>选择一个应用，查看其大小和残留文件。</translation>
    </message>
</context>
<context>
    <name>AppDetailFooter</name>
    <message>
        <source>Uninstall</source>
        <translation>卸载</translation>
    </message>
</context>
<context>
    <name>AppDetailHeader</name>
    <message>
        <source>App is currently running</source>
        <translation>应用正在运行</translation>
    </message>
</context>
<context>
    <name>AppParts</name>
    <message>
        <source>Application and leftovers</source>
        <translation>应用程序和残留项目</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>应用程序</translation>
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
        <translation>设置…</translation>
    </message>
</context>
<context>
    <name>AppsList</name>
    <message>
        <source>Applications</source>
        <translation>应用程序</translation>
    </message>
</context>
<context>
    <name>AppsPane</name>
    <message>
        <source>Search apps</source>
        <translation>搜索应用</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>没有匹配的应用</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>未找到应用程序</translation>
    </message>
    <message>
        <source>Only names are searched.</source>
        <translation>仅搜索名称。</translation>
    </message>
    <message>
        <source>There are none in the application folders.</source>
        <translation>应用程序文件夹中没有应用。</translation>
    </message>
</context>
<context>
    <name>BackupRowContent</name>
    <message>
        <source>Delete backup of %1</source>
        <translation>删除“%1”的备份</translation>
    </message>
</context>
<context>
    <name>BackupsCard</name>
    <message>
        <source>iOS Backups on This Mac</source>
        <translation>此 Mac 上的 iOS 备份</translation>
    </message>
    <message>
        <source>Old iTunes/Finder backups can take tens of gigabytes.</source>
        <translation>旧的 iTunes/访达备份可能占用数十 GB。</translation>
    </message>
    <message>
        <source>Measuring backups…</source>
        <translation>正在计算备份大小…</translation>
    </message>
    <message>
        <source>No backups found.</source>
        <translation>未找到备份。</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>备份</translation>
    </message>
</context>
<context>
    <name>BusySpinner</name>
    <message>
        <source>Busy</source>
        <translation>正忙</translation>
    </message>
</context>
<context>
    <name>Button</name>
    <message>
        <source>Unavailable</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>%1, unavailable</source>
        <translation>%1，不可用</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>User Caches</source>
        <translation>用户缓存</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>日志文件</translation>
    </message>
    <message>
        <source>Xcode Junk</source>
        <translation>Xcode 垃圾</translation>
    </message>
    <message>
        <source>Temporary Files</source>
        <translation>临时文件</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>废纸篓</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>大文件</translation>
    </message>
</context>
<context>
    <name>CleanedView</name>
    <message>
        <source>Hide Details</source>
        <translation>隐藏详细信息</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>显示详细信息</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>重新扫描</translation>
    </message>
</context>
<context>
    <name>CleanerModule</name>
    <message>
        <source>System Junk</source>
        <translation>系统垃圾</translation>
    </message>
    <message>
        <source>Caches, logs and leftover development junk</source>
        <translation>缓存、日志和开发残留文件</translation>
    </message>
    <message>
        <source>Large &amp; Old Files</source>
        <translation>大文件和旧文件</translation>
    </message>
    <message>
        <source>Find the files eating your disk</source>
        <translation>找出占用磁盘的文件</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>卸载器</translation>
    </message>
    <message>
        <source>Remove apps with all their leftovers</source>
        <translation>移除应用及其所有残留项目</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>维护</translation>
    </message>
    <message>
        <source>Speed up and maintain your Mac</source>
        <translation>加速并维护 Mac</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>重复文件</translation>
    </message>
    <message>
        <source>Find duplicate files and photos</source>
        <translation>查找重复的文件和照片</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad</source>
        <translation>iPhone 与 iPad</translation>
    </message>
    <message>
        <source>Clean a connected iPhone or iPad</source>
        <translation>清理已连接的 iPhone 或 iPad</translation>
    </message>
</context>
<context>
    <name>CleaningView</name>
    <message>
        <source>Cleaning…</source>
        <translation>正在清理…</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>欢迎使用 Korvane</translation>
    </message>
    <message>
        <source>Keep your Mac — and soon your iPhone — clean and fast.</source>
        <translation>让 Mac（以及不久后的 iPhone）保持干净、快速。</translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Dashboard</source>
        <translation>概览</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>Connected Device</source>
        <translation>已连接的设备</translation>
    </message>
    <message>
        <source>Device tools not installed</source>
        <translation>未安装设备工具</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>没有连接设备</translation>
    </message>
    <message>
        <source>Connect an iPhone or iPad with a cable and tap Trust on the device.</source>
        <translation>用线缆连接 iPhone 或 iPad，并在设备上轻点“信任”。</translation>
    </message>
    <message>
        <source>Connected devices</source>
        <translation>已连接的设备</translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Used space of %1</source>
        <translation>“%1”的已用空间</translation>
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
        <translation>已用 %1，共 %2，可用 %3</translation>
    </message>
    <message>
        <source>· last backup %1</source>
        <translation>· 上次备份：%1</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>yyyy年M月d日</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>iOS Device</source>
        <translation>iOS 设备</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message numerus="yes">
        <source>%1 — %n copies, %2 each</source>
        <comment>%1 is the name of a file, %2 the size of each copy</comment>
        <translation>
            <numerusform>%1：%n 个副本，每个 %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (original)</source>
        <translation>%1（原件）</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The listing of %1 is too long</source>
        <translation>“%1”的列表过长</translation>
    </message>
    <message>
        <source>afcclient not found — install libimobiledevice</source>
        <translation>未找到 afcclient，请安装 libimobiledevice</translation>
    </message>
    <message>
        <source>Export failed for %1</source>
        <translation>导出“%1”失败</translation>
    </message>
    <message>
        <source>Export failed for %1; what lies there now could not be moved to the Trash: %2</source>
        <translation>导出“%1”失败；该位置现有的内容无法移到废纸篓：%2</translation>
    </message>
    <message>
        <source>stopping it was cancelled</source>
        <translation>停止操作已取消</translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation>%1 耗时过长</translation>
    </message>
    <message>
        <source>systemctl is missing</source>
        <translation>缺少 systemctl</translation>
    </message>
    <message>
        <source>systemctl failed</source>
        <translation>systemctl 运行失败</translation>
    </message>
    <message>
        <source>not moved to the Trash: %1</source>
        <translation>未移到废纸篓：%1</translation>
    </message>
    <message>
        <source>moved to the Trash, but it may still run until the next login: %1</source>
        <translation>已移到废纸篓，但在下次登录前可能仍在运行：%1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>“%1” is not a Trash of this user.</source>
        <translation>“%1”不是此用户的废纸篓。</translation>
    </message>
    <message>
        <source>“%1” is a link; what it leads to is left alone.</source>
        <translation>“%1”是链接；其指向的内容不会改动。</translation>
    </message>
    <message>
        <source>“%1” holds the Trash, and cannot be moved into it.</source>
        <translation>“%1”包含废纸篓，无法移入其中。</translation>
    </message>
    <message>
        <source>“%1”, the Trash of this volume, is not a folder of this user.</source>
        <translation>此宗卷的废纸篓“%1”不是此用户的文件夹。</translation>
    </message>
    <message>
        <source>Nothing was named to be removed.</source>
        <translation>未指定要移除的内容。</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>“%1”不能作为文件名。</translation>
    </message>
    <message>
        <source>“%1” is not a full path.</source>
        <translation>“%1”不是完整路径。</translation>
    </message>
    <message>
        <source>The root of the file system is never removed.</source>
        <translation>文件系统的根目录绝不会被移除。</translation>
    </message>
    <message>
        <source>“%1” does not name an item but a way to one.</source>
        <translation>“%1”并非项目本身，而是通往项目的路径。</translation>
    </message>
    <message>
        <source>“%1” is the home folder, or holds it, and is never removed.</source>
        <translation>“%1”是个人文件夹或包含个人文件夹，绝不会被移除。</translation>
    </message>
    <message>
        <source>“%1” is where a volume is mounted, and is never removed.</source>
        <translation>“%1”是宗卷的装载点，绝不会被移除。</translation>
    </message>
    <message>
        <source>“%1” is a folder shared by all users, and is never removed.</source>
        <translation>“%1”是所有用户共享的文件夹，绝不会被移除。</translation>
    </message>
    <message>
        <source>A volume is mounted inside</source>
        <translation>其中装载了宗卷</translation>
    </message>
    <message>
        <source>There is nothing to flush: this machine keeps no DNS cache</source>
        <translation>无需刷新：此电脑没有 DNS 缓存</translation>
    </message>
    <message>
        <source>pkexec is missing, which asks for an administrator&apos;s password</source>
        <translation>缺少用于请求管理员密码的 pkexec</translation>
    </message>
    <message>
        <source>%1 is missing, which frees memory</source>
        <translation>缺少用于释放内存的 %1</translation>
    </message>
    <message>
        <source>No search index is installed (localsearch, tracker3 or balooctl)</source>
        <translation>未安装搜索索引（localsearch、tracker3 或 balooctl）</translation>
    </message>
    <message>
        <source>The request for an administrator&apos;s password was dismissed; nothing was changed</source>
        <translation>管理员密码请求已取消；未作任何更改</translation>
    </message>
    <message>
        <source>An administrator&apos;s rights were not given; nothing was changed</source>
        <translation>未获得管理员权限；未作任何更改</translation>
    </message>
    <message>
        <source>No program that asks for an administrator&apos;s password is running (a polkit agent); nothing was changed</source>
        <translation>没有正在运行的程序可请求管理员密码（polkit 代理）；未作任何更改</translation>
    </message>
    <message>
        <source>An administrator&apos;s password could not be asked for: %1</source>
        <translation>无法请求管理员密码：%1</translation>
    </message>
    <message>
        <source>The command failed: %1</source>
        <translation>命令执行失败：%1</translation>
    </message>
    <message>
        <source>The command was ended by signal %1</source>
        <translation>命令被信号 %1 终止</translation>
    </message>
    <message>
        <source>The command failed with status %1</source>
        <translation>命令失败，状态码为 %1</translation>
    </message>
</context>
<context>
    <name>FailuresList</name>
    <message>
        <source>Items that could not be removed</source>
        <translation>无法移除的项目</translation>
    </message>
</context>
<context>
    <name>FullDiskAccessBanner</name>
    <message>
        <source>Grant Full Disk Access</source>
        <translation>授予完全磁盘访问权限</translation>
    </message>
    <message>
        <source>Korvane can only see part of your junk until you allow it in System Settings.</source>
        <translation>在系统设置中允许之前，Korvane 只能看到部分垃圾。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>打开设置</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>Move files to Trash instead of deleting</source>
        <translation>将文件移到废纸篓而不是删除</translation>
    </message>
    <message>
        <source>Ask for confirmation before cleaning</source>
        <translation>清理前先确认</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>权限</translation>
    </message>
</context>
<context>
    <name>IOSDeviceView</name>
    <message>
        <source>You won&apos;t be able to restore this device from this backup afterwards.</source>
        <translation>之后将无法再用此备份恢复该设备。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到废纸篓</translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Show in Finder</source>
        <translation>在访达中显示</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>拷贝路径</translation>
    </message>
</context>
<context>
    <name>Korvane::AppListModel</name>
    <message numerus="yes">
        <source>%n leftover items</source>
        <translation>
            <numerusform>%n 个残留项目</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::CleanedTexts</name>
    <message>
        <source>%1 cleaned</source>
        <translation>已清理 %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items moved to Trash or removed</source>
        <translation>
            <numerusform>%Ln 个项目已移到废纸篓或移除</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln items could not be removed</source>
        <translation>
            <numerusform>%Ln 个项目无法移除</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::DashboardViewModel</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 可用，共 %2</translation>
    </message>
</context>
<context>
    <name>Korvane::IOSDeviceViewModel</name>
    <message>
        <source>Install libimobiledevice to talk to iPhones and iPads:
%1</source>
        <translation>安装 libimobiledevice 以便与 iPhone 和 iPad 通信：
%1</translation>
    </message>
    <message>
        <source>Delete backup of %1?</source>
        <translation>要删除“%1”的备份吗？</translation>
    </message>
</context>
<context>
    <name>Korvane::IOSMediaViewModel</name>
    <message numerus="yes">
        <source>%1 of %n folders</source>
        <translation>
            <numerusform>%1/%n 个文件夹</numerusform>
        </translation>
    </message>
    <message>
        <source>Photos &amp; Videos on %1</source>
        <translation>“%1”上的照片和视频</translation>
    </message>
    <message numerus="yes">
        <source>%n files selected</source>
        <translation>
            <numerusform>已选择 %n 个文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exporting %n files to Downloads…</source>
        <translation>
            <numerusform>正在将 %n 个文件导出到“下载”…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files to Downloads.</source>
        <translation>
            <numerusform>已将 %n 个文件导出到“下载”。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files, %1 failed.</source>
        <translation>
            <numerusform>已导出 %n 个文件，%1 个失败。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n files from %1?</source>
        <translation>
            <numerusform>要从“%1”删除 %n 个文件吗？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleting %n files…</source>
        <translation>
            <numerusform>正在删除 %n 个文件…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files.</source>
        <translation>
            <numerusform>已删除 %n 个文件。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files, %1 failed.</source>
        <translation>
            <numerusform>已删除 %n 个文件，%1 个失败。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::InstalledAppTexts</name>
    <message>
        <source>No leftover files were found.</source>
        <translation>未找到残留文件。</translation>
    </message>
    <message>
        <source>Without a usable identifier, no leftover files can be told to be this app’s.</source>
        <translation>没有可用的标识符，无法判断哪些残留文件属于此应用。</translation>
    </message>
    <message>
        <source>Leftovers (%1)</source>
        <translation>残留项目（%1）</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>要卸载“%1”吗？</translation>
    </message>
    <message>
        <source>Removes the app for good and moves all leftovers to Trash</source>
        <translation>永久移除应用，并将所有残留项目移到废纸篓</translation>
    </message>
    <message numerus="yes">
        <source>Flatpak will remove the app for good: it can be installed again, but not be put back. %n leftover items will be moved to Trash.</source>
        <translation>
            <numerusform>Flatpak 将永久移除此应用：可以重新安装，但无法放回。%n 个残留项目将移到废纸篓。</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>卸载</translation>
    </message>
    <message>
        <source>Removes the app and all leftovers to Trash</source>
        <translation>将应用和所有残留项目移到废纸篓</translation>
    </message>
    <message numerus="yes">
        <source>The app and %n leftover items will be moved to Trash.</source>
        <translation>
            <numerusform>应用和 %n 个残留项目将移到废纸篓。</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到废纸篓</translation>
    </message>
</context>
<context>
    <name>Korvane::MaintenanceViewModel</name>
    <message>
        <source>Background Items (%1)</source>
        <translation>后台项目（%1）</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>要移除“%1”吗？</translation>
    </message>
</context>
<context>
    <name>Korvane::MenuBarViewModel</name>
    <message>
        <source>Last cleanup: %1</source>
        <translation>上次清理：%1</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanConfirmation</name>
    <message>
        <source>%1 will be moved to Trash. You can restore it from there.</source>
        <translation>%1 将移到废纸篓。您可以从那里恢复。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到废纸篓</translation>
    </message>
    <message>
        <source>%1 will be permanently deleted.</source>
        <translation>%1 将被永久删除。</translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation>永久删除</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanProgressTexts</name>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>已找到 %Ln 项</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::ScanResultsModel</name>
    <message>
        <source>All files of this set are one file under several names: removing copies frees no space.</source>
        <translation>此组的所有文件是同一文件的多个名称：移除副本不会释放空间。</translation>
    </message>
    <message>
        <source>Another path of this set leads to this same file: cleaning one removes both.</source>
        <translation>此组的另一路径指向同一文件：清理其一，两者都会移除。</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanShares</name>
    <message numerus="yes">
        <source>%n others</source>
        <translation>
            <numerusform>其他 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>category: size</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanViewModel</name>
    <message>
        <source>selected of %1 found</source>
        <translation>已选择，共找到 %1</translation>
    </message>
</context>
<context>
    <name>Korvane::SettingsViewModel</name>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
</context>
<context>
    <name>Korvane::TrayIcon</name>
    <message>
        <source>Open Korvane</source>
        <translation>打开 Korvane</translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation>扫描系统垃圾</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>退出 Korvane</translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Free Up RAM</source>
        <translation>释放内存</translation>
    </message>
</context>
<context>
    <name>Maintenance</name>
    <message>
        <source>Free Up RAM</source>
        <translation>释放内存</translation>
    </message>
    <message>
        <source>Purge inactive memory to relieve pressure</source>
        <translation>清除非活跃内存以缓解压力</translation>
    </message>
    <message>
        <source>Flush DNS Cache</source>
        <translation>刷新 DNS 缓存</translation>
    </message>
    <message>
        <source>Fix stale DNS lookups and network glitches</source>
        <translation>修复过期的 DNS 查询和网络故障</translation>
    </message>
    <message>
        <source>Reindex Spotlight</source>
        <translation>重建聚焦索引</translation>
    </message>
    <message>
        <source>Rebuild the search index from scratch</source>
        <translation>从头重建搜索索引</translation>
    </message>
    <message>
        <source>User Agents</source>
        <translation>用户代理</translation>
    </message>
    <message>
        <source>System Agents</source>
        <translation>系统代理</translation>
    </message>
    <message>
        <source>System Daemons</source>
        <translation>系统守护进程</translation>
    </message>
</context>
<context>
    <name>MaintenanceHeader</name>
    <message>
        <source>Launch agents and daemons that start automatically. Removing a user agent moves its file to Trash.</source>
        <translation>自动启动的代理和守护进程。移除用户代理会将其文件移到废纸篓。</translation>
    </message>
</context>
<context>
    <name>MaintenanceView</name>
    <message>
        <source>The launch agent file will be moved to Trash. It stops running after the next login.</source>
        <translation>该代理的文件将移到废纸篓。下次登录后它不再运行。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移到废纸篓</translation>
    </message>
</context>
<context>
    <name>MediaActions</name>
    <message>
        <source>Export Selected to Downloads</source>
        <translation>将所选项导出到“下载”</translation>
    </message>
    <message>
        <source>Delete from Device</source>
        <translation>从设备删除</translation>
    </message>
</context>
<context>
    <name>MediaBrowser</name>
    <message>
        <source>Camera roll</source>
        <translation>相机胶卷</translation>
    </message>
</context>
<context>
    <name>MediaNotice</name>
    <message>
        <source>No media found in the camera roll.</source>
        <translation>相机胶卷中没有媒体。</translation>
    </message>
</context>
<context>
    <name>MediaRow</name>
    <message>
        <source>open</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>已折叠</translation>
    </message>
</context>
<context>
    <name>MediaSection</name>
    <message>
        <source>Files in the camera roll, via USB. Deleting here is permanent — the device has no trash.</source>
        <translation>通过 USB 访问的相机胶卷文件。在此删除是永久性的，因为设备没有废纸篓。</translation>
    </message>
    <message>
        <source>Reading camera roll…</source>
        <translation>正在读取相机胶卷…</translation>
    </message>
    <message>
        <source>This permanently deletes the files from the device. It cannot be undone. Export anything you want to keep first.</source>
        <translation>文件将从设备上永久删除，且无法撤销。请先导出要保留的内容。</translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation>永久删除</translation>
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
        <translation>打开 Korvane</translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation>扫描系统垃圾</translation>
    </message>
    <message>
        <source>Free Up RAM</source>
        <translation>释放内存</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>退出 Korvane</translation>
    </message>
</context>
<context>
    <name>ModuleGrid</name>
    <message>
        <source>Modules</source>
        <translation>模块</translation>
    </message>
</context>
<context>
    <name>ResultRow</name>
    <message>
        <source>Not selected by default — may be in use or needed by the system.</source>
        <translation>默认不选择：可能正在使用或为系统所需。</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Deselect All</source>
        <translation>取消全选</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>重新扫描</translation>
    </message>
</context>
<context>
    <name>ResultsList</name>
    <message>
        <source>Findings</source>
        <translation>扫描结果</translation>
    </message>
</context>
<context>
    <name>ResultsView</name>
    <message>
        <source>Clean</source>
        <translation>清理</translation>
    </message>
</context>
<context>
    <name>ScanView</name>
    <message>
        <source>Start Scan</source>
        <translation>开始扫描</translation>
    </message>
    <message>
        <source>Clean the selected items?</source>
        <translation>要清理所选项目吗？</translation>
    </message>
</context>
<context>
    <name>ScanningApps</name>
    <message>
        <source>Scanning applications…</source>
        <translation>正在扫描应用程序…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>ScanningView</name>
    <message>
        <source>Scanning…</source>
        <translation>正在扫描…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
</context>
<context>
    <name>ShareBar</name>
    <message>
        <source>Shares of the categories</source>
        <translation>各类别所占比例</translation>
    </message>
</context>
<context>
    <name>ShareLegend</name>
    <message>
        <source>Categories</source>
        <translation>类别</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Modules</source>
        <translation>模块</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>清理</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>加速</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
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
        <translation>应用程序菜单</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>退出 Korvane</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
</context>
<context>
    <name>StorageCaption</name>
    <message>
        <source>Used</source>
        <translation>已用</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>可用</translation>
    </message>
</context>
<context>
    <name>StorageOverviewCard</name>
    <message>
        <source>Startup Disk</source>
        <translation>启动磁盘</translation>
    </message>
    <message>
        <source>Used space of the startup disk</source>
        <translation>启动磁盘的已用空间</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>智能扫描</translation>
    </message>
</context>
<context>
    <name>TaskCard</name>
    <message>
        <source>Run</source>
        <translation>运行</translation>
    </message>
</context>
<context>
    <name>TaskGrid</name>
    <message>
        <source>Maintenance tasks</source>
        <translation>维护任务</translation>
    </message>
</context>
<context>
    <name>TaskStatus</name>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>UninstallerView</name>
    <message>
        <source>Scan Applications</source>
        <translation>扫描应用程序</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Korvane is already running, but it does not answer.</source>
        <translation>Korvane 已在运行，但没有响应。</translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Wait until it has finished what it is doing, or end it, and open Korvane again.</source>
        <translation>请等待它完成当前操作，或将其结束，然后再次打开 Korvane。</translation>
    </message>
</context>
</TS>
