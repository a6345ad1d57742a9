<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Keep your Mac and iOS devices clean and fast.</source>
        <translation>MacとiOSデバイスをすっきり快適に保ちます。</translation>
    </message>
</context>
<context>
    <name>AccessRow</name>
    <message>
        <source>Granted</source>
        <translation>許可済み</translation>
    </message>
    <message>
        <source>Not granted</source>
        <translation>未許可</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>フルディスクアクセス</translation>
    </message>
    <message>
        <source>Grant…</source>
        <translation>許可…</translation>
    </message>
</context>
<context>
    <name>AgentRowContent</name>
    <message>
        <source>Remove %1</source>
        <translation>%1を削除</translation>
    </message>
</context>
<context>
    <name>AgentsPage</name>
    <message>
        <source>Background items</source>
        <translation>バックグラウンド項目</translation>
    </message>
</context>
<context>
    <name>AllCleanView</name>
    <message>
        <source>All Clean!</source>
        <translation>すべてきれいです！</translation>
    </message>
    <message>
        <source>Nothing found to clean in this module.</source>
        <translation>このモジュールでクリーニングできるものは見つかりませんでした。</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>もう一度スキャン</translation>
    </message>
</context>
<context>
    <name>AppDetail</name>
    <message>
        <source>Select an application</source>
        <translation>アプリケーションを選択してください</translation>
    </message>
    <message>
        <source>Pick an app to see its size and leftover files.</source>
        <translation>アプリを選ぶと、サイズと残存ファイルが表示されます。</translation>
    </message>
</context>
<context>
    <name>AppDetailFooter</name>
    <message>
        <source>Uninstall</source>
        <translation>アンインストール</translation>
    </message>
</context>
<context>
    <name>AppDetailHeader</name>
    <message>
        <source>App is currently running</source>
        <translation>アプリは実行中です</translation>
    </message>
</context>
<context>
    <name>AppParts</name>
    <message>
        <source>Application and leftovers</source>
        <translation>アプリケーションと残存項目</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>アプリケーション</translation>
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
        <translation>設定…</translation>
    </message>
</context>
<context>
    <name>AppsList</name>
    <message>
        <source>Applications</source>
        <translation>アプリケーション</translation>
    </message>
</context>
<context>
    <name>AppsPane</name>
    <message>
        <source>Search apps</source>
        <translation>アプリを検索</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>もう一度スキャン</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>一致するアプリはありません</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>アプリケーションが見つかりません</translation>
    </message>
    <message>
        <source>Only names are searched.</source>
        <translation>検索の対象は名前だけです。</translation>
    </message>
    <message>
        <source>There are none in the application folders.</source>
        <translation>アプリケーションフォルダには何もありません。</translation>
    </message>
</context>
<context>
    <name>BackupRowContent</name>
    <message>
        <source>Delete backup of %1</source>
        <translation>%1のバックアップを削除</translation>
    </message>
</context>
<context>
    <name>BackupsCard</name>
    <message>
        <source>iOS Backups on This Mac</source>
        <translation>このMac内のiOSバックアップ</translation>
    </message>
    <message>
        <source>Old iTunes/Finder backups can take tens of gigabytes.</source>
        <translation>古いiTunes/Finderのバックアップは数十ギガバイトに及ぶことがあります。</translation>
    </message>
    <message>
        <source>Measuring backups…</source>
        <translation>バックアップのサイズを計算中…</translation>
    </message>
    <message>
        <source>No backups found.</source>
        <translation>バックアップが見つかりません。</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>バックアップ</translation>
    </message>
</context>
<context>
    <name>BusySpinner</name>
    <message>
        <source>Busy</source>
        <translation>処理中</translation>
    </message>
</context>
<context>
    <name>Button</name>
    <message>
        <source>Unavailable</source>
        <translation>利用できません</translation>
    </message>
    <message>
        <source>%1, unavailable</source>
        <translation>%1、利用できません</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>User Caches</source>
        <translation>ユーザキャッシュ</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>ログファイル</translation>
    </message>
    <message>
        <source>Xcode Junk</source>
        <translation>Xcodeの不要ファイル</translation>
    </message>
    <message>
        <source>Temporary Files</source>
        <translation>一時ファイル</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>ゴミ箱</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>大きいファイル</translation>
    </message>
</context>
<context>
    <name>CleanedView</name>
    <message>
        <source>Hide Details</source>
        <translation>詳細を隠す</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>詳細を表示</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>もう一度スキャン</translation>
    </message>
</context>
<context>
    <name>CleanerModule</name>
    <message>
        <source>System Junk</source>
        <translation>システムの不要ファイル</translation>
    </message>
    <message>
        <source>Caches, logs and leftover development junk</source>
        <translation>キャッシュ、ログ、開発の残存ファイル</translation>
    </message>
    <message>
        <source>Large &amp; Old Files</source>
        <translation>大容量・古いファイル</translation>
    </message>
    <message>
        <source>Find the files eating your disk</source>
        <translation>ディスクを占有しているファイルを探します</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>アンインストーラ</translation>
    </message>
    <message>
        <source>Remove apps with all their leftovers</source>
        <translation>アプリを残存項目ごと削除します</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>メンテナンス</translation>
    </message>
    <message>
        <source>Speed up and maintain your Mac</source>
        <translation>Macを高速化し、最適な状態に保ちます</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>重複ファイル</translation>
    </message>
    <message>
        <source>Find duplicate files and photos</source>
        <translation>重複しているファイルや写真を探します</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad</source>
        <translation>iPhoneとiPad</translation>
    </message>
    <message>
        <source>Clean a connected iPhone or iPad</source>
        <translation>接続中のiPhoneやiPadを整理します</translation>
    </message>
</context>
<context>
    <name>CleaningView</name>
    <message>
        <source>Cleaning…</source>
        <translation>クリーニング中…</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <translation>Korvaneへようこそ</translation>
    </message>
    <message>
        <source>Keep your Mac — and soon your iPhone — clean and fast.</source>
        <translation>Macを、そして間もなくiPhoneも、すっきり快適に保ちます。</translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Dashboard</source>
        <translation>ダッシュボード</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>Connected Device</source>
        <translation>接続中のデバイス</translation>
    </message>
    <message>
        <source>Device tools not installed</source>
        <translation>デバイスツールがインストールされていません</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>デバイスが接続されていません</translation>
    </message>
    <message>
        <source>Connect an iPhone or iPad with a cable and tap Trust on the device.</source>
        <translation>iPhoneまたはiPadをケーブルで接続し、デバイスで「信頼」をタップしてください。</translation>
    </message>
    <message>
        <source>Connected devices</source>
        <translation>接続中のデバイス</translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Used space of %1</source>
        <translation>%1の使用領域</translation>
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
        <translation>%2中%1を使用、空き%3</translation>
    </message>
    <message>
        <source>· last backup %1</source>
        <translation>· 前回のバックアップ: %1</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>yyyy年M月d日</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%nファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>iOS Device</source>
        <translation>iOSデバイス</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message numerus="yes">
        <source>%1 — %n copies, %2 each</source>
        <comment>%1 is the name of a file, %2 the size of each copy</comment>
        <translation>
            <numerusform>%1: %nコピー、各%2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (original)</source>
        <translation>%1（オリジナル）</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The listing of %1 is too long</source>
        <translation>%1の一覧が長すぎます</translation>
    </message>
    <message>
        <source>afcclient not found — install libimobiledevice</source>
        <translation>afcclientが見つかりません。libimobiledeviceをインストールしてください</translation>
    </message>
    <message>
        <source>Export failed for %1</source>
        <translation>%1の書き出しに失敗しました</translation>
    </message>
    <message>
        <source>Export failed for %1; what lies there now could not be moved to the Trash: %2</source>
        <translation>%1の書き出しに失敗しました。その場所に残ったものをゴミ箱に入れられませんでした: %2</translation>
    </message>
    <message>
        <source>stopping it was cancelled</source>
        <translation>停止がキャンセルされました</translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation>%1に時間がかかりすぎました</translation>
    </message>
    <message>
        <source>systemctl is missing</source>
        <translation>systemctlがありません</translation>
    </message>
    <message>
        <source>systemctl failed</source>
        <translation>systemctlが失敗しました</translation>
    </message>
    <message>
        <source>not moved to the Trash: %1</source>
        <translation>ゴミ箱に入れられませんでした: %1</translation>
    </message>
    <message>
        <source>moved to the Trash, but it may still run until the next login: %1</source>
        <translation>ゴミ箱に入れましたが、次のログインまで動作し続ける可能性があります: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>“%1” is not a Trash of this user.</source>
        <translation>“%1”はこのユーザのゴミ箱ではありません。</translation>
    </message>
    <message>
        <source>“%1” is a link; what it leads to is left alone.</source>
        <translation>“%1”はリンクです。リンク先には触れません。</translation>
    </message>
    <message>
        <source>“%1” holds the Trash, and cannot be moved into it.</source>
        <translation>“%1”はゴミ箱を含んでいるため、ゴミ箱に入れられません。</translation>
    </message>
    <message>
        <source>“%1”, the Trash of this volume, is not a folder of this user.</source>
        <translation>このボリュームのゴミ箱“%1”は、このユーザのフォルダではありません。</translation>
    </message>
    <message>
        <source>Nothing was named to be removed.</source>
        <translation>削除するものが指定されていません。</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>“%1”はファイル名として使えません。</translation>
    </message>
    <message>
        <source>“%1” is not a full path.</source>
        <translation>“%1”は完全なパスではありません。</translation>
    </message>
    <message>
        <source>The root of the file system is never removed.</source>
        <translation>ファイルシステムのルートが削除されることはありません。</translation>
    </message>
    <message>
        <source>“%1” does not name an item but a way to one.</source>
        <translation>“%1”は項目ではなく、項目への経路を示しています。</translation>
    </message>
    <message>
        <source>“%1” is the home folder, or holds it, and is never removed.</source>
        <translation>“%1”はホームフォルダかそれを含むフォルダなので、削除されることはありません。</translation>
    </message>
    <message>
        <source>“%1” is where a volume is mounted, and is never removed.</source>
        <translation>“%1”にはボリュームがマウントされているため、削除されることはありません。</translation>
    </message>
    <message>
        <source>“%1” is a folder shared by all users, and is never removed.</source>
        <translation>“%1”は全ユーザの共有フォルダなので、削除されることはありません。</translation>
    </message>
    <message>
        <source>A volume is mounted inside</source>
        <translation>中にボリュームがマウントされています</translation>
    </message>
    <message>
        <source>There is nothing to flush: this machine keeps no DNS cache</source>
        <translation>消去するものはありません: このコンピュータにDNSキャッシュはありません</translation>
    </message>
    <message>
        <source>pkexec is missing, which asks for an administrator&apos;s password</source>
        <translation>管理者のパスワードを求めるpkexecがありません</translation>
    </message>
    <message>
        <source>%1 is missing, which frees memory</source>
        <translation>メモリを解放する%1がありません</translation>
    </message>
    <message>
        <source>No search index is installed (localsearch, tracker3 or balooctl)</source>
        <translation>検索インデックスがインストールされていません（localsearch、tracker3、balooctlのいずれか）</translation>
    </message>
    <message>
        <source>The request for an administrator&apos;s password was dismissed; nothing was changed</source>
        <translation>管理者パスワードの要求が取り消されました。何も変更されていません</translation>
    </message>
    <message>
        <source>An administrator&apos;s rights were not given; nothing was changed</source>
        <translation>管理者権限が与えられませんでした。何も変更されていません</translation>
    </message>
    <message>
        <source>No program that asks for an administrator&apos;s password is running (a polkit agent); nothing was changed</source>
        <translation>管理者パスワードを求めるプログラム（polkitエージェント）が動作していません。何も変更されていません</translation>
    </message>
    <message>
        <source>An administrator&apos;s password could not be asked for: %1</source>
        <translation>管理者パスワードを求められませんでした: %1</translation>
    </message>
    <message>
        <source>The command failed: %1</source>
        <translation>コマンドが失敗しました: %1</translation>
    </message>
    <message>
        <source>The command was ended by signal %1</source>
        <translation>コマンドはシグナル%1で終了しました</translation>
    </message>
    <message>
        <source>The command failed with status %1</source>
        <translation>コマンドはステータス%1で失敗しました</translation>
    </message>
</context>
<context>
    <name>FailuresList</name>
    <message>
        <source>Items that could not be removed</source>
        <translation>削除できなかった項目</translation>
    </message>
</context>
<context>
    <name>FullDiskAccessBanner</name>
    <message>
        <source>Grant Full Disk Access</source>
        <translation>フルディスクアクセスを許可</translation>
    </message>
    <message>
        <source>Korvane can only see part of your junk until you allow it in System Settings.</source>
        <translation>システム設定で許可するまで、Korvaneには不要ファイルの一部しか見えません。</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>設定を開く</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>Move files to Trash instead of deleting</source>
        <translation>ファイルを削除せずにゴミ箱に入れる</translation>
    </message>
    <message>
        <source>Ask for confirmation before cleaning</source>
        <translation>クリーニングの前に確認する</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>アクセス権</translation>
    </message>
</context>
<context>
    <name>IOSDeviceView</name>
    <message>
        <source>You won&apos;t be able to restore this device from this backup afterwards.</source>
        <translation>以後、このバックアップからデバイスを復元することはできなくなります。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に入れる</translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Show in Finder</source>
        <translation>Finderに表示</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>ファイルマネージャで表示</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>パスをコピー</translation>
    </message>
</context>
<context>
    <name>Korvane::AppListModel</name>
    <message numerus="yes">
        <source>%n leftover items</source>
        <translation>
            <numerusform>残存項目%n件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::CleanedTexts</name>
    <message>
        <source>%1 cleaned</source>
        <translation>%1をクリーニングしました</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items moved to Trash or removed</source>
        <translation>
            <numerusform>%Ln項目をゴミ箱に入れるか削除しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln items could not be removed</source>
        <translation>
            <numerusform>%Ln項目は削除できませんでした</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::DashboardViewModel</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%2中%1が空き</translation>
    </message>
</context>
<context>
    <name>Korvane::IOSDeviceViewModel</name>
    <message>
        <source>Install libimobiledevice to talk to iPhones and iPads:
%1</source>
        <translation>iPhoneやiPadと通信するにはlibimobiledeviceをインストールしてください:
%1</translation>
    </message>
    <message>
        <source>Delete backup of %1?</source>
        <translation>%1のバックアップを削除しますか？</translation>
    </message>
</context>
<context>
    <name>Korvane::IOSMediaViewModel</name>
    <message numerus="yes">
        <source>%1 of %n folders</source>
        <translation>
            <numerusform>%1／%nフォルダ</numerusform>
        </translation>
    </message>
    <message>
        <source>Photos &amp; Videos on %1</source>
        <translation>%1の写真とビデオ</translation>
    </message>
    <message numerus="yes">
        <source>%n files selected</source>
        <translation>
            <numerusform>%nファイルを選択中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exporting %n files to Downloads…</source>
        <translation>
            <numerusform>%nファイルを「ダウンロード」に書き出し中…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files to Downloads.</source>
        <translation>
            <numerusform>%nファイルを「ダウンロード」に書き出しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files, %1 failed.</source>
        <translation>
            <numerusform>%nファイルを書き出し、%1ファイルは失敗しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n files from %1?</source>
        <translation>
            <numerusform>%1から%nファイルを削除しますか？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleting %n files…</source>
        <translation>
            <numerusform>%nファイルを削除中…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files.</source>
        <translation>
            <numerusform>%nファイルを削除しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files, %1 failed.</source>
        <translation>
            <numerusform>%nファイルを削除し、%1ファイルは失敗しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::InstalledAppTexts</name>
    <message>
        <source>No leftover files were found.</source>
        <translation>残存ファイルは見つかりませんでした。</translation>
    </message>
    <message>
        <source>Without a usable identifier, no leftover files can be told to be this app’s.</source>
        <translation>使用可能な識別子がないため、このアプリの残存ファイルを特定できません。</translation>
    </message>
    <message>
        <source>Leftovers (%1)</source>
        <translation>残存項目（%1）</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>%1をアンインストールしますか？</translation>
    </message>
    <message>
        <source>Removes the app for good and moves all leftovers to Trash</source>
        <translation>アプリを完全に削除し、残存項目をすべてゴミ箱に入れます</translation>
    </message>
    <message numerus="yes">
        <source>Flatpak will remove the app for good: it can be installed again, but not be put back. %n leftover items will be moved to Trash.</source>
        <translation>
            <numerusform>Flatpakがアプリを完全に削除します。再インストールはできますが、元に戻すことはできません。残存項目%n件はゴミ箱に入れられます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>アンインストール</translation>
    </message>
    <message>
        <source>Removes the app and all leftovers to Trash</source>
        <translation>アプリと残存項目をすべてゴミ箱に入れます</translation>
    </message>
    <message numerus="yes">
        <source>The app and %n leftover items will be moved to Trash.</source>
        <translation>
            <numerusform>アプリと残存項目%n件がゴミ箱に入れられます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に入れる</translation>
    </message>
</context>
<context>
    <name>Korvane::MaintenanceViewModel</name>
    <message>
        <source>Background Items (%1)</source>
        <translation>バックグラウンド項目（%1）</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>%1を削除しますか？</translation>
    </message>
</context>
<context>
    <name>Korvane::MenuBarViewModel</name>
    <message>
        <source>Last cleanup: %1</source>
        <translation>前回のクリーニング: %1</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanConfirmation</name>
    <message>
        <source>%1 will be moved to Trash. You can restore it from there.</source>
        <translation>%1がゴミ箱に入れられます。ゴミ箱から元に戻すことができます。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に入れる</translation>
    </message>
    <message>
        <source>%1 will be permanently deleted.</source>
        <translation>%1が完全に削除されます。</translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation>完全に削除</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanProgressTexts</name>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>%Ln件検出</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::ScanResultsModel</name>
    <message>
        <source>All files of this set are one file under several names: removing copies frees no space.</source>
        <translation>このグループのファイルは、複数の名前を持つ1つのファイルです。コピーを削除しても空き容量は増えません。</translation>
    </message>
    <message>
        <source>Another path of this set leads to this same file: cleaning one removes both.</source>
        <translation>このグループの別のパスが同じファイルを指しています。一方をクリーニングすると両方とも削除されます。</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanShares</name>
    <message numerus="yes">
        <source>%n others</source>
        <translation>
            <numerusform>ほか%n件</numerusform>
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
        <translation>選択中（検出: %1）</translation>
    </message>
</context>
<context>
    <name>Korvane::SettingsViewModel</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン%1</translation>
    </message>
</context>
<context>
    <name>Korvane::TrayIcon</name>
    <message>
        <source>Open Korvane</source>
        <translation>Korvaneを開く</translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation>システムの不要ファイルをスキャン</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Korvaneを終了</translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Free Up RAM</source>
        <translation>RAMを解放</translation>
    </message>
</context>
<context>
    <name>Maintenance</name>
    <message>
        <source>Free Up RAM</source>
        <translation>RAMを解放</translation>
    </message>
    <message>
        <source>Purge inactive memory to relieve pressure</source>
        <translation>使われていないメモリを解放して負荷を下げます</translation>
    </message>
    <message>
        <source>Flush DNS Cache</source>
        <translation>DNSキャッシュを消去</translation>
    </message>
    <message>
        <source>Fix stale DNS lookups and network glitches</source>
        <translation>古いDNS情報やネットワークの不調を解消します</translation>
    </message>
    <message>
        <source>Reindex Spotlight</source>
        <translation>Spotlightのインデックスを再作成</translation>
    </message>
    <message>
        <source>Rebuild the search index from scratch</source>
        <translation>検索インデックスを最初から作り直します</translation>
    </message>
    <message>
        <source>User Agents</source>
        <translation>ユーザエージェント</translation>
    </message>
    <message>
        <source>System Agents</source>
        <translation>システムエージェント</translation>
    </message>
    <message>
        <source>System Daemons</source>
        <translation>システムデーモン</translation>
    </message>
</context>
<context>
    <name>MaintenanceHeader</name>
    <message>
        <source>Launch agents and daemons that start automatically. Removing a user agent moves its file to Trash.</source>
        <translation>自動的に起動するエージェントとデーモンです。ユーザエージェントを削除すると、そのファイルがゴミ箱に入ります。</translation>
    </message>
</context>
<context>
    <name>MaintenanceView</name>
    <message>
        <source>The launch agent file will be moved to Trash. It stops running after the next login.</source>
        <translation>エージェントのファイルはゴミ箱に入れられます。次のログイン以降は動作しなくなります。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>ゴミ箱に入れる</translation>
    </message>
</context>
<context>
    <name>MediaActions</name>
    <message>
        <source>Export Selected to Downloads</source>
        <translation>選択項目を「ダウンロード」に書き出す</translation>
    </message>
    <message>
        <source>Delete from Device</source>
        <translation>デバイスから削除</translation>
    </message>
</context>
<context>
    <name>MediaBrowser</name>
    <message>
        <source>Camera roll</source>
        <translation>カメラロール</translation>
    </message>
</context>
<context>
    <name>MediaNotice</name>
    <message>
        <source>No media found in the camera roll.</source>
        <translation>カメラロールに写真やビデオがありません。</translation>
    </message>
</context>
<context>
    <name>MediaRow</name>
    <message>
        <source>open</source>
        <translation>開いています</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>閉じています</translation>
    </message>
</context>
<context>
    <name>MediaSection</name>
    <message>
        <source>Files in the camera roll, via USB. Deleting here is permanent — the device has no trash.</source>
        <translation>カメラロール内のファイル（USB経由）。デバイスにはゴミ箱がないため、ここでの削除は取り消せません。</translation>
    </message>
    <message>
        <source>Reading camera roll…</source>
        <translation>カメラロールを読み込み中…</translation>
    </message>
    <message>
        <source>This permanently deletes the files from the device. It cannot be undone. Export anything you want to keep first.</source>
        <translation>ファイルはデバイスから完全に削除されます。この操作は取り消せません。残しておきたいものは先に書き出してください。</translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation>完全に削除</translation>
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
        <translation>Korvaneを開く</translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation>システムの不要ファイルをスキャン</translation>
    </message>
    <message>
        <source>Free Up RAM</source>
        <translation>RAMを解放</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Korvaneを終了</translation>
    </message>
</context>
<context>
    <name>ModuleGrid</name>
    <message>
        <source>Modules</source>
        <translation>モジュール</translation>
    </message>
</context>
<context>
    <name>ResultRow</name>
    <message>
        <source>Not selected by default — may be in use or needed by the system.</source>
        <translation>最初は選択されていません。使用中か、システムに必要な可能性があります。</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Deselect All</source>
        <translation>すべて選択解除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>再スキャン</translation>
    </message>
</context>
<context>
    <name>ResultsList</name>
    <message>
        <source>Findings</source>
        <translation>検出項目</translation>
    </message>
</context>
<context>
    <name>ResultsView</name>
    <message>
        <source>Clean</source>
        <translation>クリーニング</translation>
    </message>
</context>
<context>
    <name>ScanView</name>
    <message>
        <source>Start Scan</source>
        <translation>スキャンを開始</translation>
    </message>
    <message>
        <source>Clean the selected items?</source>
        <translation>選択した項目をクリーニングしますか？</translation>
    </message>
</context>
<context>
    <name>ScanningApps</name>
    <message>
        <source>Scanning applications…</source>
        <translation>アプリケーションをスキャン中…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ScanningView</name>
    <message>
        <source>Scanning…</source>
        <translation>スキャン中…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
</context>
<context>
    <name>ShareBar</name>
    <message>
        <source>Shares of the categories</source>
        <translation>カテゴリの割合</translation>
    </message>
</context>
<context>
    <name>ShareLegend</name>
    <message>
        <source>Categories</source>
        <translation>カテゴリ</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Modules</source>
        <translation>モジュール</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>ダッシュボード</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>クリーニング</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>スピード</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
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
        <translation>アプリケーションメニュー</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Korvaneを終了</translation>
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
        <translation>使用済み</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>空き</translation>
    </message>
</context>
<context>
    <name>StorageOverviewCard</name>
    <message>
        <source>Startup Disk</source>
        <translation>起動ディスク</translation>
    </message>
    <message>
        <source>Used space of the startup disk</source>
        <translation>起動ディスクの使用領域</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>スマートスキャン</translation>
    </message>
</context>
<context>
    <name>TaskCard</name>
    <message>
        <source>Run</source>
        <translation>実行</translation>
    </message>
</context>
<context>
    <name>TaskGrid</name>
    <message>
        <source>Maintenance tasks</source>
        <translation>メンテナンスタスク</translation>
    </message>
</context>
<context>
    <name>TaskStatus</name>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>UninstallerView</name>
    <message>
        <source>Scan Applications</source>
        <translation>アプリケーションをスキャン</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Korvane is already running, but it does not answer.</source>
        <translation>Korvaneはすでに動作していますが、応答がありません。</translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Wait until it has finished what it is doing, or end it, and open Korvane again.</source>
        <translation>実行中の処理が終わるまで待つか、終了させてから、もう一度Korvaneを開いてください。</translation>
    </message>
</context>
</TS>
