<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Keep your Mac and iOS devices clean and fast.</source>
        <translation>Gardez votre Mac et vos appareils iOS propres et rapides.</translation>
    </message>
</context>
<context>
    <name>AccessRow</name>
    <message>
        <source>Granted</source>
        <translation>Accordé</translation>
    </message>
    <message>
        <source>Not granted</source>
        <translation>Non accordé</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>Accès complet au disque</translation>
    </message>
    <message>
        <source>Grant…</source>
        <translation>Autoriser…</translation>
    </message>
</context>
<context>
    <name>AgentRowContent</name>
    <message>
        <source>Remove %1</source>
        <translation>Supprimer %1</translation>
    </message>
</context>
<context>
    <name>AgentsPage</name>
    <message>
        <source>Background items</source>
        <translation>Éléments en arrière-plan</translation>
    </message>
</context>
<context>
    <name>AllCleanView</name>
    <message>
        <source>All Clean!</source>
        <translation>Tout est propre&#x202f;!</translation>
    </message>
    <message>
        <source>Nothing found to clean in this module.</source>
        <translation>Rien à nettoyer dans ce module.</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>Relancer l’analyse</translation>
    </message>
</context>
<context>
    <name>AppDetail</name>
    <message>
        <source>Select an application</source>
        <translation>Sélectionnez une application</translation>
    </message>
    <message>
        <source>Pick an app to see its size and leftover files.</source>
        <translation>Choisissez une app pour voir sa taille et ses fichiers résiduels.</translation>
    </message>
</context>
<context>
    <name>AppDetailFooter</name>
    <message>
        <source>Uninstall</source>
        <translation>Désinstaller</translation>
    </message>
</context>
<context>
    <name>AppDetailHeader</name>
    <message>
        <source>App is currently running</source>
        <translation>L’app est en cours d’exécution</translation>
    </message>
</context>
<context>
    <name>AppParts</name>
    <message>
        <source>Application and leftovers</source>
        <translation>Application et résidus</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Application</translation>
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
        <translation>Réglages…</translation>
    </message>
</context>
<context>
    <name>AppsList</name>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
</context>
<context>
    <name>AppsPane</name>
    <message>
        <source>Search apps</source>
        <translation>Rechercher des apps</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>Relancer l’analyse</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>Aucune app correspondante</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>Aucune application trouvée</translation>
    </message>
    <message>
        <source>Only names are searched.</source>
        <translation>Seuls les noms sont recherchés.</translation>
    </message>
    <message>
        <source>There are none in the application folders.</source>
        <translation>Les dossiers d’applications n’en contiennent aucune.</translation>
    </message>
</context>
<context>
    <name>BackupRowContent</name>
    <message>
        <source>Delete backup of %1</source>
        <translation>Supprimer la sauvegarde de «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>BackupsCard</name>
    <message>
        <source>iOS Backups on This Mac</source>
        <translation>Sauvegardes iOS sur ce Mac</translation>
    </message>
    <message>
        <source>Old iTunes/Finder backups can take tens of gigabytes.</source>
        <translation>Les anciennes sauvegardes iTunes/Finder peuvent occuper des dizaines de gigaoctets.</translation>
    </message>
    <message>
        <source>Measuring backups…</source>
        <translation>Mesure des sauvegardes…</translation>
    </message>
    <message>
        <source>No backups found.</source>
        <translation>Aucune sauvegarde trouvée.</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sauvegardes</translation>
    </message>
</context>
<context>
    <name>BusySpinner</name>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
</context>
<context>
    <name>Button</name>
    <message>
        <source>Unavailable</source>
        <translation>Indisponible</translation>
    </message>
    <message>
        <source>%1, unavailable</source>
        <translation>%1, indisponible</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>User Caches</source>
        <translation>Caches de l’utilisateur</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Fichiers journaux</translation>
    </message>
    <message>
        <source>Xcode Junk</source>
        <translation>Résidus de Xcode</translation>
    </message>
    <message>
        <source>Temporary Files</source>
        <translation>Fichiers temporaires</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Fichiers volumineux</translation>
    </message>
</context>
<context>
    <name>CleanedView</name>
    <message>
        <source>Hide Details</source>
        <translation>Masquer les détails</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Afficher les détails</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>Relancer l’analyse</translation>
    </message>
</context>
<context>
    <name>CleanerModule</name>
    <message>
        <source>System Junk</source>
        <translation>Fichiers inutiles</translation>
    </message>
    <message>
        <source>Caches, logs and leftover development junk</source>
        <translation>Caches, journaux et résidus de développement</translation>
    </message>
    <message>
        <source>Large &amp; Old Files</source>
        <translation>Volumineux et anciens</translation>
    </message>
    <message>
        <source>Find the files eating your disk</source>
        <translation>Trouvez les fichiers qui remplissent votre disque</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>Désinstallation</translation>
    </message>
    <message>
        <source>Remove apps with all their leftovers</source>
        <translation>Supprimez les apps avec tous leurs résidus</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Maintenance</translation>
    </message>
    <message>
        <source>Speed up and maintain your Mac</source>
        <translation>Accélérez et entretenez votre Mac</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Find duplicate files and photos</source>
        <translation>Trouvez les fichiers et photos en double</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad</source>
        <translation>iPhone et iPad</translation>
    </message>
    <message>
        <source>Clean a connected iPhone or iPad</source>
        <translation>Nettoyez un iPhone ou iPad connecté</translation>
    </message>
</context>
<context>
    <name>CleaningView</name>
    <message>
        <source>Cleaning…</source>
        <translation>Nettoyage…</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <translation>Bienvenue dans Korvane</translation>
    </message>
    <message>
        <source>Keep your Mac — and soon your iPhone — clean and fast.</source>
        <translation>Gardez votre Mac – et bientôt votre iPhone – propre et rapide.</translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Dashboard</source>
        <translation>Tableau de bord</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>Connected Device</source>
        <translation>Appareil connecté</translation>
    </message>
    <message>
        <source>Device tools not installed</source>
        <translation>Les outils pour appareils ne sont pas installés</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>Aucun appareil connecté</translation>
    </message>
    <message>
        <source>Connect an iPhone or iPad with a cable and tap Trust on the device.</source>
        <translation>Connectez un iPhone ou un iPad par câble et touchez «&#xa0;Se fier&#xa0;» sur l’appareil.</translation>
    </message>
    <message>
        <source>Connected devices</source>
        <translation>Appareils connectés</translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Used space of %1</source>
        <translation>Espace utilisé de «&#xa0;%1&#xa0;»</translation>
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
        <translation>%1 utilisés sur %2 – %3 libres</translation>
    </message>
    <message>
        <source>· last backup %1</source>
        <translation>· dernière sauvegarde&#xa0;: %1</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>iOS Device</source>
        <translation>Appareil iOS</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message numerus="yes">
        <source>%1 — %n copies, %2 each</source>
        <comment>%1 is the name of a file, %2 the size of each copy</comment>
        <translation>
            <numerusform>%1 – %n copie de %2</numerusform>
            <numerusform>%1 – %n copies de %2 chacune</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (original)</source>
        <translation>%1 (original)</translation>
    </message>
</context>
<context>
    <name>Errors</name>
    <message>
        <source>The listing of %1 is too long</source>
        <translation>La liste de «&#xa0;%1&#xa0;» est trop longue</translation>
    </message>
    <message>
        <source>afcclient not found — install libimobiledevice</source>
        <translation>afcclient introuvable – installez libimobiledevice</translation>
    </message>
    <message>
        <source>Export failed for %1</source>
        <translation>Échec de l’exportation de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Export failed for %1; what lies there now could not be moved to the Trash: %2</source>
        <translation>Échec de l’exportation de «&#xa0;%1&#xa0;»&#x202f;; ce qui s’y trouve à présent n’a pas pu être placé dans la corbeille&#xa0;: %2</translation>
    </message>
    <message>
        <source>stopping it was cancelled</source>
        <translation>son arrêt a été annulé</translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation>%1 a pris trop de temps</translation>
    </message>
    <message>
        <source>systemctl is missing</source>
        <translation>systemctl est introuvable</translation>
    </message>
    <message>
        <source>systemctl failed</source>
        <translation>systemctl a échoué</translation>
    </message>
    <message>
        <source>not moved to the Trash: %1</source>
        <translation>non placé dans la corbeille&#xa0;: %1</translation>
    </message>
    <message>
        <source>moved to the Trash, but it may still run until the next login: %1</source>
        <translation>placé dans la corbeille, mais peut encore s’exécuter jusqu’à la prochaine ouverture de session&#xa0;: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
    </message>
    <message>
        <source>“%1” is not a Trash of this user.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une corbeille de cet utilisateur.</translation>
    </message>
    <message>
        <source>“%1” is a link; what it leads to is left alone.</source>
        <translation>«&#xa0;%1&#xa0;» est un lien&#x202f;; sa cible n’est pas touchée.</translation>
    </message>
    <message>
        <source>“%1” holds the Trash, and cannot be moved into it.</source>
        <translation>«&#xa0;%1&#xa0;» contient la corbeille et ne peut pas y être placé.</translation>
    </message>
    <message>
        <source>“%1”, the Trash of this volume, is not a folder of this user.</source>
        <translation>«&#xa0;%1&#xa0;», la corbeille de ce volume, n’est pas un dossier de cet utilisateur.</translation>
    </message>
    <message>
        <source>Nothing was named to be removed.</source>
        <translation>Rien n’a été désigné pour la suppression.</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être un nom de fichier.</translation>
    </message>
    <message>
        <source>“%1” is not a full path.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un chemin complet.</translation>
    </message>
    <message>
        <source>The root of the file system is never removed.</source>
        <translation>La racine du système de fichiers n’est jamais supprimée.</translation>
    </message>
    <message>
        <source>“%1” does not name an item but a way to one.</source>
        <translation>«&#xa0;%1&#xa0;» ne désigne pas un élément, mais un chemin vers un élément.</translation>
    </message>
    <message>
        <source>“%1” is the home folder, or holds it, and is never removed.</source>
        <translation>«&#xa0;%1&#xa0;» est le dossier de départ, ou le contient, et n’est jamais supprimé.</translation>
    </message>
    <message>
        <source>“%1” is where a volume is mounted, and is never removed.</source>
        <translation>Un volume est monté sur «&#xa0;%1&#xa0;», qui n’est jamais supprimé.</translation>
    </message>
    <message>
        <source>“%1” is a folder shared by all users, and is never removed.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier partagé par tous les utilisateurs et n’est jamais supprimé.</translation>
    </message>
    <message>
        <source>A volume is mounted inside</source>
        <translation>Un volume y est monté</translation>
    </message>
    <message>
        <source>There is nothing to flush: this machine keeps no DNS cache</source>
        <translation>Rien à vider&#xa0;: cette machine n’a pas de cache DNS</translation>
    </message>
    <message>
        <source>pkexec is missing, which asks for an administrator&apos;s password</source>
        <translation>pkexec, qui demande le mot de passe d’un administrateur, est introuvable</translation>
    </message>
    <message>
        <source>%1 is missing, which frees memory</source>
        <translation>%1, qui libère la mémoire, est introuvable</translation>
    </message>
    <message>
        <source>No search index is installed (localsearch, tracker3 or balooctl)</source>
        <translation>Aucun index de recherche n’est installé (localsearch, tracker3 ou balooctl)</translation>
    </message>
    <message>
        <source>The request for an administrator&apos;s password was dismissed; nothing was changed</source>
        <translation>La demande de mot de passe d’un administrateur a été refusée&#x202f;; rien n’a été modifié</translation>
    </message>
    <message>
        <source>An administrator&apos;s rights were not given; nothing was changed</source>
        <translation>Les droits d’administrateur n’ont pas été accordés&#x202f;; rien n’a été modifié</translation>
    </message>
    <message>
        <source>No program that asks for an administrator&apos;s password is running (a polkit agent); nothing was changed</source>
        <translation>Aucun programme demandant le mot de passe d’un administrateur (un agent polkit) n’est lancé&#x202f;; rien n’a été modifié</translation>
    </message>
    <message>
        <source>An administrator&apos;s password could not be asked for: %1</source>
        <translation>Impossible de demander le mot de passe d’un administrateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>The command failed: %1</source>
        <translation>La commande a échoué&#xa0;: %1</translation>
    </message>
    <message>
        <source>The command was ended by signal %1</source>
        <translation>La commande a été interrompue par le signal %1</translation>
    </message>
    <message>
        <source>The command failed with status %1</source>
        <translation>La commande a échoué avec l’état %1</translation>
    </message>
</context>
<context>
    <name>FailuresList</name>
    <message>
        <source>Items that could not be removed</source>
        <translation>Éléments qui n’ont pas pu être supprimés</translation>
    </message>
</context>
<context>
    <name>FullDiskAccessBanner</name>
    <message>
        <source>Grant Full Disk Access</source>
        <translation>Autoriser l’accès complet au disque</translation>
    </message>
    <message>
        <source>Korvane can only see part of your junk until you allow it in System Settings.</source>
        <translation>Korvane ne voit qu’une partie des fichiers inutiles tant que vous ne l’y autorisez pas dans Réglages Système.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Ouvrir les réglages</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>Move files to Trash instead of deleting</source>
        <translation>Placer les fichiers dans la corbeille au lieu de les supprimer</translation>
    </message>
    <message>
        <source>Ask for confirmation before cleaning</source>
        <translation>Demander confirmation avant de nettoyer</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Autorisations</translation>
    </message>
</context>
<context>
    <name>IOSDeviceView</name>
    <message>
        <source>You won&apos;t be able to restore this device from this backup afterwards.</source>
        <translation>Vous ne pourrez plus restaurer cet appareil à partir de cette sauvegarde.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Show in Finder</source>
        <translation>Afficher dans le Finder</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copier le chemin</translation>
    </message>
</context>
<context>
    <name>Korvane::AppListModel</name>
    <message numerus="yes">
        <source>%n leftover items</source>
        <translation>
            <numerusform>%n élément résiduel</numerusform>
            <numerusform>%n éléments résiduels</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::CleanedTexts</name>
    <message>
        <source>%1 cleaned</source>
        <translation>%1 nettoyés</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items moved to Trash or removed</source>
        <translation>
            <numerusform>%Ln élément placé dans la corbeille ou supprimé</numerusform>
            <numerusform>%Ln éléments placés dans la corbeille ou supprimés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln items could not be removed</source>
        <translation>
            <numerusform>%Ln élément n’a pas pu être supprimé</numerusform>
            <numerusform>%Ln éléments n’ont pas pu être supprimés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::DashboardViewModel</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 libres sur %2</translation>
    </message>
</context>
<context>
    <name>Korvane::IOSDeviceViewModel</name>
    <message>
        <source>Install libimobiledevice to talk to iPhones and iPads:
%1</source>
        <translation>Installez libimobiledevice pour communiquer avec les iPhone et iPad&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Delete backup of %1?</source>
        <translation>Supprimer la sauvegarde de «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
</context>
<context>
    <name>Korvane::IOSMediaViewModel</name>
    <message numerus="yes">
        <source>%1 of %n folders</source>
        <translation>
            <numerusform>%1 sur %n dossier</numerusform>
            <numerusform>%1 sur %n dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Photos &amp; Videos on %1</source>
        <translation>Photos et vidéos sur «&#xa0;%1&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>%n files selected</source>
        <translation>
            <numerusform>%n fichier sélectionné</numerusform>
            <numerusform>%n fichiers sélectionnés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exporting %n files to Downloads…</source>
        <translation>
            <numerusform>Exportation de %n fichier vers Téléchargements…</numerusform>
            <numerusform>Exportation de %n fichiers vers Téléchargements…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files to Downloads.</source>
        <translation>
            <numerusform>%n fichier exporté vers Téléchargements.</numerusform>
            <numerusform>%n fichiers exportés vers Téléchargements.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files, %1 failed.</source>
        <translation>
            <numerusform>%n fichier exporté, %1 en échec.</numerusform>
            <numerusform>%n fichiers exportés, %1 en échec.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n files from %1?</source>
        <translation>
            <numerusform>Supprimer %n fichier de «&#xa0;%1&#xa0;»&#x202f;?</numerusform>
            <numerusform>Supprimer %n fichiers de «&#xa0;%1&#xa0;»&#x202f;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleting %n files…</source>
        <translation>
            <numerusform>Suppression de %n fichier…</numerusform>
            <numerusform>Suppression de %n fichiers…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files.</source>
        <translation>
            <numerusform>%n fichier supprimé.</numerusform>
            <numerusform>%n fichiers supprimés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files, %1 failed.</source>
        <translation>
            <numerusform>%n fichier supprimé, %1 en échec.</numerusform>
            <numerusform>%n fichiers supprimés, %1 en échec.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::InstalledAppTexts</name>
    <message>
        <source>No leftover files were found.</source>
        <translation>Aucun fichier résiduel trouvé.</translation>
    </message>
    <message>
        <source>Without a usable identifier, no leftover files can be told to be this app’s.</source>
        <translation>Sans identifiant utilisable, aucun fichier résiduel ne peut être attribué à cette app.</translation>
    </message>
    <message>
        <source>Leftovers (%1)</source>
        <translation>Résidus (%1)</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>Désinstaller %1&#x202f;?</translation>
    </message>
    <message>
        <source>Removes the app for good and moves all leftovers to Trash</source>
        <translation>Supprime l’app définitivement et place tous les résidus dans la corbeille</translation>
    </message>
    <message numerus="yes">
        <source>Flatpak will remove the app for good: it can be installed again, but not be put back. %n leftover items will be moved to Trash.</source>
        <translation>
            <numerusform>Flatpak supprimera l’app définitivement&#xa0;: elle pourra être réinstallée, mais pas remise en place. %n élément résiduel sera placé dans la corbeille.</numerusform>
            <numerusform>Flatpak supprimera l’app définitivement&#xa0;: elle pourra être réinstallée, mais pas remise en place. %n éléments résiduels seront placés dans la corbeille.</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>Removes the app and all leftovers to Trash</source>
        <translation>Place l’app et tous ses résidus dans la corbeille</translation>
    </message>
    <message numerus="yes">
        <source>The app and %n leftover items will be moved to Trash.</source>
        <translation>
            <numerusform>L’app et %n élément résiduel seront placés dans la corbeille.</numerusform>
            <numerusform>L’app et %n éléments résiduels seront placés dans la corbeille.</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
</context>
<context>
    <name>Korvane::MaintenanceViewModel</name>
    <message>
        <source>Background Items (%1)</source>
        <translation>Éléments en arrière-plan (%1)</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>Supprimer %1&#x202f;?</translation>
    </message>
</context>
<context>
    <name>Korvane::MenuBarViewModel</name>
    <message>
        <source>Last cleanup: %1</source>
        <translation>Dernier nettoyage&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanConfirmation</name>
    <message>
        <source>%1 will be moved to Trash. You can restore it from there.</source>
        <translation>%1 seront placés dans la corbeille. Vous pourrez les restaurer depuis celle-ci.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
    <message>
        <source>%1 will be permanently deleted.</source>
        <translation>%1 seront supprimés définitivement.</translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation>Supprimer définitivement</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanProgressTexts</name>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>%Ln trouvé</numerusform>
            <numerusform>%Ln trouvés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::ScanResultsModel</name>
    <message>
        <source>All files of this set are one file under several names: removing copies frees no space.</source>
        <translation>Tous les fichiers de ce groupe sont un seul fichier sous plusieurs noms&#xa0;: supprimer des copies ne libère pas d’espace.</translation>
    </message>
    <message>
        <source>Another path of this set leads to this same file: cleaning one removes both.</source>
        <translation>Un autre chemin de ce groupe mène au même fichier&#xa0;: nettoyer l’un supprime les deux.</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanShares</name>
    <message numerus="yes">
        <source>%n others</source>
        <translation>
            <numerusform>%n autre</numerusform>
            <numerusform>%n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>category: size</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanViewModel</name>
    <message>
        <source>selected of %1 found</source>
        <translation>sélectionnés sur %1 trouvés</translation>
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
        <translation>Ouvrir Korvane</translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation>Analyser les fichiers inutiles</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Quitter Korvane</translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Free Up RAM</source>
        <translation>Libérer la mémoire vive</translation>
    </message>
</context>
<context>
    <name>Maintenance</name>
    <message>
        <source>Free Up RAM</source>
        <translation>Libérer la mémoire vive</translation>
    </message>
    <message>
        <source>Purge inactive memory to relieve pressure</source>
        <translation>Purgez la mémoire inactive pour alléger la charge</translation>
    </message>
    <message>
        <source>Flush DNS Cache</source>
        <translation>Vider le cache DNS</translation>
    </message>
    <message>
        <source>Fix stale DNS lookups and network glitches</source>
        <translation>Corrigez les réponses DNS périmées et les problèmes de réseau</translation>
    </message>
    <message>
        <source>Reindex Spotlight</source>
        <translation>Réindexer Spotlight</translation>
    </message>
    <message>
        <source>Rebuild the search index from scratch</source>
        <translation>Reconstruisez entièrement l’index de recherche</translation>
    </message>
    <message>
        <source>User Agents</source>
        <translation>Agents de l’utilisateur</translation>
    </message>
    <message>
        <source>System Agents</source>
        <translation>Agents du système</translation>
    </message>
    <message>
        <source>System Daemons</source>
        <translation>Daemons du système</translation>
    </message>
</context>
<context>
    <name>MaintenanceHeader</name>
    <message>
        <source>Launch agents and daemons that start automatically. Removing a user agent moves its file to Trash.</source>
        <translation>Agents et daemons qui se lancent automatiquement. Supprimer un agent de l’utilisateur place son fichier dans la corbeille.</translation>
    </message>
</context>
<context>
    <name>MaintenanceView</name>
    <message>
        <source>The launch agent file will be moved to Trash. It stops running after the next login.</source>
        <translation>Le fichier de l’agent sera placé dans la corbeille. Il ne s’exécutera plus après la prochaine ouverture de session.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Placer dans la corbeille</translation>
    </message>
</context>
<context>
    <name>MediaActions</name>
    <message>
        <source>Export Selected to Downloads</source>
        <translation>Exporter vers Téléchargements</translation>
    </message>
    <message>
        <source>Delete from Device</source>
        <translation>Supprimer de l’appareil</translation>
    </message>
</context>
<context>
    <name>MediaBrowser</name>
    <message>
        <source>Camera roll</source>
        <translation>Pellicule</translation>
    </message>
</context>
<context>
    <name>MediaNotice</name>
    <message>
        <source>No media found in the camera roll.</source>
        <translation>Aucun média dans la pellicule.</translation>
    </message>
</context>
<context>
    <name>MediaRow</name>
    <message>
        <source>open</source>
        <translation>ouvert</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>fermé</translation>
    </message>
</context>
<context>
    <name>MediaSection</name>
    <message>
        <source>Files in the camera roll, via USB. Deleting here is permanent — the device has no trash.</source>
        <translation>Fichiers de la pellicule, par USB. Ici, la suppression est définitive – l’appareil n’a pas de corbeille.</translation>
    </message>
    <message>
        <source>Reading camera roll…</source>
        <translation>Lecture de la pellicule…</translation>
    </message>
    <message>
        <source>This permanently deletes the files from the device. It cannot be undone. Export anything you want to keep first.</source>
        <translation>Les fichiers seront supprimés définitivement de l’appareil. Cette opération est irréversible. Exportez d’abord ce que vous souhaitez conserver.</translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation>Supprimer définitivement</translation>
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
        <translation>Ouvrir Korvane</translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation>Analyser les fichiers inutiles</translation>
    </message>
    <message>
        <source>Free Up RAM</source>
        <translation>Libérer la mémoire vive</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Quitter Korvane</translation>
    </message>
</context>
<context>
    <name>ModuleGrid</name>
    <message>
        <source>Modules</source>
        <translation>Modules</translation>
    </message>
</context>
<context>
    <name>ResultRow</name>
    <message>
        <source>Not selected by default — may be in use or needed by the system.</source>
        <translation>Non sélectionné par défaut – peut être utilisé ou nécessaire au système.</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Deselect All</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Réanalyser</translation>
    </message>
</context>
<context>
    <name>ResultsList</name>
    <message>
        <source>Findings</source>
        <translation>Résultats</translation>
    </message>
</context>
<context>
    <name>ResultsView</name>
    <message>
        <source>Clean</source>
        <translation>Nettoyer</translation>
    </message>
</context>
<context>
    <name>ScanView</name>
    <message>
        <source>Start Scan</source>
        <translation>Lancer l’analyse</translation>
    </message>
    <message>
        <source>Clean the selected items?</source>
        <translation>Nettoyer les éléments sélectionnés&#x202f;?</translation>
    </message>
</context>
<context>
    <name>ScanningApps</name>
    <message>
        <source>Scanning applications…</source>
        <translation>Analyse des applications…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ScanningView</name>
    <message>
        <source>Scanning…</source>
        <translation>Analyse…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
</context>
<context>
    <name>ShareBar</name>
    <message>
        <source>Shares of the categories</source>
        <translation>Parts des catégories</translation>
    </message>
</context>
<context>
    <name>ShareLegend</name>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Modules</source>
        <translation>Modules</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Tableau de bord</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Nettoyage</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Performances</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
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
        <translation>Menu de l’application</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Quitter Korvane</translation>
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
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
</context>
<context>
    <name>StorageOverviewCard</name>
    <message>
        <source>Startup Disk</source>
        <translation>Disque de démarrage</translation>
    </message>
    <message>
        <source>Used space of the startup disk</source>
        <translation>Espace utilisé du disque de démarrage</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Analyse intelligente</translation>
    </message>
</context>
<context>
    <name>TaskCard</name>
    <message>
        <source>Run</source>
        <translation>Exécuter</translation>
    </message>
</context>
<context>
    <name>TaskGrid</name>
    <message>
        <source>Maintenance tasks</source>
        <translation>Tâches de maintenance</translation>
    </message>
</context>
<context>
    <name>TaskStatus</name>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>UninstallerView</name>
    <message>
        <source>Scan Applications</source>
        <translation>Analyser les applications</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Korvane is already running, but it does not answer.</source>
        <translation>Korvane est déjà en cours d’exécution, mais ne répond pas.</translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Wait until it has finished what it is doing, or end it, and open Korvane again.</source>
        <translation>Attendez qu’il ait terminé ce qu’il fait, ou forcez-le à quitter, puis ouvrez de nouveau Korvane.</translation>
    </message>
</context>
</TS>
