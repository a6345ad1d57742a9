<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>AboutSettingsView</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Keep your Mac and iOS devices clean and fast.</source>
        <translation>Mantenga el Mac y los dispositivos iOS limpios y rápidos.</translation>
    </message>
</context>
<context>
    <name>AccessRow</name>
    <message>
        <source>Granted</source>
        <translation>Concedido</translation>
    </message>
    <message>
        <source>Not granted</source>
        <translation>No concedido</translation>
    </message>
    <message>
        <source>Full Disk Access</source>
        <translation>Acceso total al disco</translation>
    </message>
    <message>
        <source>Grant…</source>
        <translation>Conceder…</translation>
    </message>
</context>
<context>
    <name>AgentRowContent</name>
    <message>
        <source>Remove %1</source>
        <translation>Eliminar %1</translation>
    </message>
</context>
<context>
    <name>AgentsPage</name>
    <message>
        <source>Background items</source>
        <translation>Ítems en segundo plano</translation>
    </message>
</context>
<context>
    <name>AllCleanView</name>
    <message>
        <source>All Clean!</source>
        <translation>¡Todo limpio!</translation>
    </message>
    <message>
        <source>Nothing found to clean in this module.</source>
        <translation>No se ha encontrado nada que limpiar en este módulo.</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>Analizar de nuevo</translation>
    </message>
</context>
<context>
    <name>AppDetail</name>
    <message>
        <source>Select an application</source>
        <translation>Seleccione una aplicación</translation>
    </message>
    <message>
        <source>Pick an app to see its size and leftover files.</source>
        <translation>Elija una app para ver su tamaño y sus archivos residuales.</translation>
    </message>
</context>
<context>
    <name>AppDetailFooter</name>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
</context>
<context>
    <name>AppDetailHeader</name>
    <message>
        <source>App is currently running</source>
        <translation>La app se está ejecutando</translation>
    </message>
</context>
<context>
    <name>AppParts</name>
    <message>
        <source>Application and leftovers</source>
        <translation>Aplicación y residuos</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Aplicación</translation>
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
        <translation>Ajustes…</translation>
    </message>
</context>
<context>
    <name>AppsList</name>
    <message>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
</context>
<context>
    <name>AppsPane</name>
    <message>
        <source>Search apps</source>
        <translation>Buscar apps</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>Analizar de nuevo</translation>
    </message>
    <message>
        <source>No matching apps</source>
        <translation>No hay apps que coincidan</translation>
    </message>
    <message>
        <source>No applications found</source>
        <translation>No se han encontrado aplicaciones</translation>
    </message>
    <message>
        <source>Only names are searched.</source>
        <translation>Solo se busca en los nombres.</translation>
    </message>
    <message>
        <source>There are none in the application folders.</source>
        <translation>No hay ninguna en las carpetas de aplicaciones.</translation>
    </message>
</context>
<context>
    <name>BackupRowContent</name>
    <message>
        <source>Delete backup of %1</source>
        <translation>Eliminar la copia de seguridad de «%1»</translation>
    </message>
</context>
<context>
    <name>BackupsCard</name>
    <message>
        <source>iOS Backups on This Mac</source>
        <translation>Copias de seguridad de iOS en este Mac</translation>
    </message>
    <message>
        <source>Old iTunes/Finder backups can take tens of gigabytes.</source>
        <translation>Las copias antiguas de iTunes/Finder pueden ocupar decenas de gigabytes.</translation>
    </message>
    <message>
        <source>Measuring backups…</source>
        <translation>Calculando el tamaño de las copias de seguridad…</translation>
    </message>
    <message>
        <source>No backups found.</source>
        <translation>No se han encontrado copias de seguridad.</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Copias de seguridad</translation>
    </message>
</context>
<context>
    <name>BusySpinner</name>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
</context>
<context>
    <name>Button</name>
    <message>
        <source>Unavailable</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>%1, unavailable</source>
        <translation>%1, no disponible</translation>
    </message>
</context>
<context>
    <name>Categories</name>
    <message>
        <source>User Caches</source>
        <translation>Cachés del usuario</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Archivos de registro</translation>
    </message>
    <message>
        <source>Xcode Junk</source>
        <translation>Restos de Xcode</translation>
    </message>
    <message>
        <source>Temporary Files</source>
        <translation>Archivos temporales</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papelera</translation>
    </message>
    <message>
        <source>Large Files</source>
        <translation>Archivos grandes</translation>
    </message>
</context>
<context>
    <name>CleanedView</name>
    <message>
        <source>Hide Details</source>
        <translation>Ocultar detalles</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Mostrar detalles</translation>
    </message>
    <message>
        <source>Scan Again</source>
        <translation>Analizar de nuevo</translation>
    </message>
</context>
<context>
    <name>CleanerModule</name>
    <message>
        <source>System Junk</source>
        <translation>Basura del sistema</translation>
    </message>
    <message>
        <source>Caches, logs and leftover development junk</source>
        <translation>Cachés, registros y restos de desarrollo</translation>
    </message>
    <message>
        <source>Large &amp; Old Files</source>
        <translation>Grandes y antiguos</translation>
    </message>
    <message>
        <source>Find the files eating your disk</source>
        <translation>Encuentre los archivos que llenan el disco</translation>
    </message>
    <message>
        <source>Uninstaller</source>
        <translation>Desinstalador</translation>
    </message>
    <message>
        <source>Remove apps with all their leftovers</source>
        <translation>Elimine apps con todos sus residuos</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Mantenimiento</translation>
    </message>
    <message>
        <source>Speed up and maintain your Mac</source>
        <translation>Acelere y mantenga el Mac</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplicados</translation>
    </message>
    <message>
        <source>Find duplicate files and photos</source>
        <translation>Encuentre archivos y fotos duplicados</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad</source>
        <translation>iPhone y iPad</translation>
    </message>
    <message>
        <source>Clean a connected iPhone or iPad</source>
        <translation>Limpie un iPhone o iPad conectado</translation>
    </message>
</context>
<context>
    <name>CleaningView</name>
    <message>
        <source>Cleaning…</source>
        <translation>Limpiando…</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Bienvenido a Korvane</translation>
    </message>
    <message>
        <source>Keep your Mac — and soon your iPhone — clean and fast.</source>
        <translation>Mantenga el Mac —y pronto el iPhone— limpio y rápido.</translation>
    </message>
</context>
<context>
    <name>DashboardView</name>
    <message>
        <source>Dashboard</source>
        <translation>Panel</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>Connected Device</source>
        <translation>Dispositivo conectado</translation>
    </message>
    <message>
        <source>Device tools not installed</source>
        <translation>Herramientas de dispositivos no instaladas</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>Ningún dispositivo conectado</translation>
    </message>
    <message>
        <source>Connect an iPhone or iPad with a cable and tap Trust on the device.</source>
        <translation>Conecte un iPhone o iPad con un cable y toque «Confiar» en el dispositivo.</translation>
    </message>
    <message>
        <source>Connected devices</source>
        <translation>Dispositivos conectados</translation>
    </message>
</context>
<context>
    <name>DeviceHeading</name>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
</context>
<context>
    <name>DeviceRow</name>
    <message>
        <source>Used space of %1</source>
        <translation>Espacio usado de «%1»</translation>
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
        <translation>%1 usados de %2 — %3 libres</translation>
    </message>
    <message>
        <source>· last backup %1</source>
        <translation>· última copia: %1</translation>
    </message>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>iOS Device</source>
        <translation>Dispositivo iOS</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message numerus="yes">
        <source>%1 — %n copies, %2 each</source>
        <comment>%1 is the name of a file, %2 the size of each copy</comment>
        <translation>
            <numerusform>%1: %n copia de %2</numerusform>
            <numerusform>%1: %n copias de %2 cada una</numerusform>
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
        <translation>La lista de %1 es demasiado larga</translation>
    </message>
    <message>
        <source>afcclient not found — install libimobiledevice</source>
        <translation>No se encuentra afcclient: instale libimobiledevice</translation>
    </message>
    <message>
        <source>Export failed for %1</source>
        <translation>Error al exportar %1</translation>
    </message>
    <message>
        <source>Export failed for %1; what lies there now could not be moved to the Trash: %2</source>
        <translation>Error al exportar %1; lo que hay ahora en su lugar no se ha podido mover a la papelera: %2</translation>
    </message>
    <message>
        <source>stopping it was cancelled</source>
        <translation>se ha cancelado su detención</translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation>%1 ha tardado demasiado</translation>
    </message>
    <message>
        <source>systemctl is missing</source>
        <translation>Falta systemctl</translation>
    </message>
    <message>
        <source>systemctl failed</source>
        <translation>systemctl ha fallado</translation>
    </message>
    <message>
        <source>not moved to the Trash: %1</source>
        <translation>no se ha movido a la papelera: %1</translation>
    </message>
    <message>
        <source>moved to the Trash, but it may still run until the next login: %1</source>
        <translation>movido a la papelera, pero puede seguir ejecutándose hasta el próximo inicio de sesión: %1</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Error desconocido</translation>
    </message>
    <message>
        <source>“%1” is not a Trash of this user.</source>
        <translation>«%1» no es una papelera de este usuario.</translation>
    </message>
    <message>
        <source>“%1” is a link; what it leads to is left alone.</source>
        <translation>«%1» es un enlace; su destino no se toca.</translation>
    </message>
    <message>
        <source>“%1” holds the Trash, and cannot be moved into it.</source>
        <translation>«%1» contiene la papelera y no se puede mover a ella.</translation>
    </message>
    <message>
        <source>“%1”, the Trash of this volume, is not a folder of this user.</source>
        <translation>«%1», la papelera de este volumen, no es una carpeta de este usuario.</translation>
    </message>
    <message>
        <source>Nothing was named to be removed.</source>
        <translation>No se ha indicado nada que eliminar.</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>«%1» no puede ser el nombre de un archivo.</translation>
    </message>
    <message>
        <source>“%1” is not a full path.</source>
        <translation>«%1» no es una ruta completa.</translation>
    </message>
    <message>
        <source>The root of the file system is never removed.</source>
        <translation>La raíz del sistema de archivos no se elimina nunca.</translation>
    </message>
    <message>
        <source>“%1” does not name an item but a way to one.</source>
        <translation>«%1» no nombra un ítem, sino un camino hacia uno.</translation>
    </message>
    <message>
        <source>“%1” is the home folder, or holds it, and is never removed.</source>
        <translation>«%1» es la carpeta de inicio, o la contiene, y no se elimina nunca.</translation>
    </message>
    <message>
        <source>“%1” is where a volume is mounted, and is never removed.</source>
        <translation>En «%1» hay montado un volumen; no se elimina nunca.</translation>
    </message>
    <message>
        <source>“%1” is a folder shared by all users, and is never removed.</source>
        <translation>«%1» es una carpeta compartida por todos los usuarios y no se elimina nunca.</translation>
    </message>
    <message>
        <source>A volume is mounted inside</source>
        <translation>Contiene un volumen montado</translation>
    </message>
    <message>
        <source>There is nothing to flush: this machine keeps no DNS cache</source>
        <translation>No hay nada que vaciar: este equipo no guarda caché DNS</translation>
    </message>
    <message>
        <source>pkexec is missing, which asks for an administrator&apos;s password</source>
        <translation>Falta pkexec, que pide la contraseña de un administrador</translation>
    </message>
    <message>
        <source>%1 is missing, which frees memory</source>
        <translation>Falta %1, que libera memoria</translation>
    </message>
    <message>
        <source>No search index is installed (localsearch, tracker3 or balooctl)</source>
        <translation>No hay ningún índice de búsqueda instalado (localsearch, tracker3 o balooctl)</translation>
    </message>
    <message>
        <source>The request for an administrator&apos;s password was dismissed; nothing was changed</source>
        <translation>Se ha descartado la petición de la contraseña de un administrador; no se ha cambiado nada</translation>
    </message>
    <message>
        <source>An administrator&apos;s rights were not given; nothing was changed</source>
        <translation>No se han concedido derechos de administrador; no se ha cambiado nada</translation>
    </message>
    <message>
        <source>No program that asks for an administrator&apos;s password is running (a polkit agent); nothing was changed</source>
        <translation>No se ejecuta ningún programa que pida la contraseña de un administrador (un agente polkit); no se ha cambiado nada</translation>
    </message>
    <message>
        <source>An administrator&apos;s password could not be asked for: %1</source>
        <translation>No se ha podido pedir la contraseña de un administrador: %1</translation>
    </message>
    <message>
        <source>The command failed: %1</source>
        <translation>El comando ha fallado: %1</translation>
    </message>
    <message>
        <source>The command was ended by signal %1</source>
        <translation>La señal %1 ha terminado el comando</translation>
    </message>
    <message>
        <source>The command failed with status %1</source>
        <translation>El comando ha fallado con el estado %1</translation>
    </message>
</context>
<context>
    <name>FailuresList</name>
    <message>
        <source>Items that could not be removed</source>
        <translation>Ítems que no se han podido eliminar</translation>
    </message>
</context>
<context>
    <name>FullDiskAccessBanner</name>
    <message>
        <source>Grant Full Disk Access</source>
        <translation>Conceder acceso total al disco</translation>
    </message>
    <message>
        <source>Korvane can only see part of your junk until you allow it in System Settings.</source>
        <translation>Korvane solo verá una parte de los archivos innecesarios hasta que usted lo permita en Ajustes del Sistema.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir ajustes</translation>
    </message>
</context>
<context>
    <name>GeneralSettingsView</name>
    <message>
        <source>Move files to Trash instead of deleting</source>
        <translation>Mover los archivos a la papelera en lugar de eliminarlos</translation>
    </message>
    <message>
        <source>Ask for confirmation before cleaning</source>
        <translation>Pedir confirmación antes de limpiar</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Permisos</translation>
    </message>
</context>
<context>
    <name>IOSDeviceView</name>
    <message>
        <source>You won&apos;t be able to restore this device from this backup afterwards.</source>
        <translation>Después no podrá restaurar este dispositivo desde esta copia de seguridad.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
</context>
<context>
    <name>ItemMenu</name>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar en el Finder</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copiar ruta</translation>
    </message>
</context>
<context>
    <name>Korvane::AppListModel</name>
    <message numerus="yes">
        <source>%n leftover items</source>
        <translation>
            <numerusform>%n ítem residual</numerusform>
            <numerusform>%n ítems residuales</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::CleanedTexts</name>
    <message>
        <source>%1 cleaned</source>
        <translation>%1 limpiados</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items moved to Trash or removed</source>
        <translation>
            <numerusform>%Ln ítem movido a la papelera o eliminado</numerusform>
            <numerusform>%Ln ítems movidos a la papelera o eliminados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln items could not be removed</source>
        <translation>
            <numerusform>%Ln ítem no se ha podido eliminar</numerusform>
            <numerusform>%Ln ítems no se han podido eliminar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::DashboardViewModel</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 libres de %2</translation>
    </message>
</context>
<context>
    <name>Korvane::IOSDeviceViewModel</name>
    <message>
        <source>Install libimobiledevice to talk to iPhones and iPads:
%1</source>
        <translation>Instale libimobiledevice para comunicarse con iPhone y iPad:
%1</translation>
    </message>
    <message>
        <source>Delete backup of %1?</source>
        <translation>¿Eliminar la copia de seguridad de «%1»?</translation>
    </message>
</context>
<context>
    <name>Korvane::IOSMediaViewModel</name>
    <message numerus="yes">
        <source>%1 of %n folders</source>
        <translation>
            <numerusform>%1 de %n carpeta</numerusform>
            <numerusform>%1 de %n carpetas</numerusform>
        </translation>
    </message>
    <message>
        <source>Photos &amp; Videos on %1</source>
        <translation>Fotos y vídeos en «%1»</translation>
    </message>
    <message numerus="yes">
        <source>%n files selected</source>
        <translation>
            <numerusform>%n archivo seleccionado</numerusform>
            <numerusform>%n archivos seleccionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exporting %n files to Downloads…</source>
        <translation>
            <numerusform>Exportando %n archivo a Descargas…</numerusform>
            <numerusform>Exportando %n archivos a Descargas…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files to Downloads.</source>
        <translation>
            <numerusform>%n archivo exportado a Descargas.</numerusform>
            <numerusform>%n archivos exportados a Descargas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Exported %n files, %1 failed.</source>
        <translation>
            <numerusform>%n archivo exportado, %1 con error.</numerusform>
            <numerusform>%n archivos exportados, %1 con error.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n files from %1?</source>
        <translation>
            <numerusform>¿Eliminar %n archivo de «%1»?</numerusform>
            <numerusform>¿Eliminar %n archivos de «%1»?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleting %n files…</source>
        <translation>
            <numerusform>Eliminando %n archivo…</numerusform>
            <numerusform>Eliminando %n archivos…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files.</source>
        <translation>
            <numerusform>%n archivo eliminado.</numerusform>
            <numerusform>%n archivos eliminados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deleted %n files, %1 failed.</source>
        <translation>
            <numerusform>%n archivo eliminado, %1 con error.</numerusform>
            <numerusform>%n archivos eliminados, %1 con error.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::InstalledAppTexts</name>
    <message>
        <source>No leftover files were found.</source>
        <translation>No se han encontrado archivos residuales.</translation>
    </message>
    <message>
        <source>Without a usable identifier, no leftover files can be told to be this app’s.</source>
        <translation>Sin un identificador utilizable no se puede saber qué archivos residuales son de esta app.</translation>
    </message>
    <message>
        <source>Leftovers (%1)</source>
        <translation>Residuos (%1)</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>¿Desinstalar %1?</translation>
    </message>
    <message>
        <source>Removes the app for good and moves all leftovers to Trash</source>
        <translation>Elimina la app definitivamente y mueve todos los residuos a la papelera</translation>
    </message>
    <message numerus="yes">
        <source>Flatpak will remove the app for good: it can be installed again, but not be put back. %n leftover items will be moved to Trash.</source>
        <translation>
            <numerusform>Flatpak eliminará la app definitivamente: se puede instalar de nuevo, pero no devolver a su sitio. %n ítem residual se moverá a la papelera.</numerusform>
            <numerusform>Flatpak eliminará la app definitivamente: se puede instalar de nuevo, pero no devolver a su sitio. %n ítems residuales se moverán a la papelera.</numerusform>
        </translation>
    </message>
    <message>
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
    <message>
        <source>Removes the app and all leftovers to Trash</source>
        <translation>Mueve la app y todos los residuos a la papelera</translation>
    </message>
    <message numerus="yes">
        <source>The app and %n leftover items will be moved to Trash.</source>
        <translation>
            <numerusform>La app y %n ítem residual se moverán a la papelera.</numerusform>
            <numerusform>La app y %n ítems residuales se moverán a la papelera.</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
</context>
<context>
    <name>Korvane::MaintenanceViewModel</name>
    <message>
        <source>Background Items (%1)</source>
        <translation>Ítems en segundo plano (%1)</translation>
    </message>
    <message>
        <source>Remove %1?</source>
        <translation>¿Eliminar %1?</translation>
    </message>
</context>
<context>
    <name>Korvane::MenuBarViewModel</name>
    <message>
        <source>Last cleanup: %1</source>
        <translation>Última limpieza: %1</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanConfirmation</name>
    <message>
        <source>%1 will be moved to Trash. You can restore it from there.</source>
        <translation>Se moverán %1 a la papelera. Desde allí podrá restaurarlos.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>%1 will be permanently deleted.</source>
        <translation>Se eliminarán %1 definitivamente.</translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation>Eliminar definitivamente</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanProgressTexts</name>
    <message numerus="yes">
        <source>%Ln found</source>
        <translation>
            <numerusform>%Ln encontrado</numerusform>
            <numerusform>%Ln encontrados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Korvane::ScanResultsModel</name>
    <message>
        <source>All files of this set are one file under several names: removing copies frees no space.</source>
        <translation>Todos los archivos de este grupo son un mismo archivo con varios nombres: eliminar copias no libera espacio.</translation>
    </message>
    <message>
        <source>Another path of this set leads to this same file: cleaning one removes both.</source>
        <translation>Otra ruta de este grupo lleva a este mismo archivo: al limpiar una se eliminan ambas.</translation>
    </message>
</context>
<context>
    <name>Korvane::ScanShares</name>
    <message numerus="yes">
        <source>%n others</source>
        <translation>
            <numerusform>%n más</numerusform>
            <numerusform>%n más</numerusform>
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
        <translation>seleccionados de %1 encontrados</translation>
    </message>
</context>
<context>
    <name>Korvane::SettingsViewModel</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
</context>
<context>
    <name>Korvane::TrayIcon</name>
    <message>
        <source>Open Korvane</source>
        <translation>Abrir Korvane</translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation>Analizar basura del sistema</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Salir de Korvane</translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Free Up RAM</source>
        <translation>Liberar RAM</translation>
    </message>
</context>
<context>
    <name>Maintenance</name>
    <message>
        <source>Free Up RAM</source>
        <translation>Liberar RAM</translation>
    </message>
    <message>
        <source>Purge inactive memory to relieve pressure</source>
        <translation>Libere la memoria inactiva para aliviar la carga</translation>
    </message>
    <message>
        <source>Flush DNS Cache</source>
        <translation>Vaciar la caché DNS</translation>
    </message>
    <message>
        <source>Fix stale DNS lookups and network glitches</source>
        <translation>Corrija consultas DNS obsoletas y fallos de red</translation>
    </message>
    <message>
        <source>Reindex Spotlight</source>
        <translation>Reindexar Spotlight</translation>
    </message>
    <message>
        <source>Rebuild the search index from scratch</source>
        <translation>Reconstruya el índice de búsqueda desde cero</translation>
    </message>
    <message>
        <source>User Agents</source>
        <translation>Agentes del usuario</translation>
    </message>
    <message>
        <source>System Agents</source>
        <translation>Agentes del sistema</translation>
    </message>
    <message>
        <source>System Daemons</source>
        <translation>Daemons del sistema</translation>
    </message>
</context>
<context>
    <name>MaintenanceHeader</name>
    <message>
        <source>Launch agents and daemons that start automatically. Removing a user agent moves its file to Trash.</source>
        <translation>Agentes y daemons que se inician automáticamente. Al eliminar un agente del usuario, su archivo se mueve a la papelera.</translation>
    </message>
</context>
<context>
    <name>MaintenanceView</name>
    <message>
        <source>The launch agent file will be moved to Trash. It stops running after the next login.</source>
        <translation>El archivo del agente se moverá a la papelera. Dejará de ejecutarse tras el próximo inicio de sesión.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
</context>
<context>
    <name>MediaActions</name>
    <message>
        <source>Export Selected to Downloads</source>
        <translation>Exportar selección a Descargas</translation>
    </message>
    <message>
        <source>Delete from Device</source>
        <translation>Eliminar del dispositivo</translation>
    </message>
</context>
<context>
    <name>MediaBrowser</name>
    <message>
        <source>Camera roll</source>
        <translation>Carrete</translation>
    </message>
</context>
<context>
    <name>MediaNotice</name>
    <message>
        <source>No media found in the camera roll.</source>
        <translation>No hay fotos ni vídeos en el carrete.</translation>
    </message>
</context>
<context>
    <name>MediaRow</name>
    <message>
        <source>open</source>
        <translation>abierta</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>cerrada</translation>
    </message>
</context>
<context>
    <name>MediaSection</name>
    <message>
        <source>Files in the camera roll, via USB. Deleting here is permanent — the device has no trash.</source>
        <translation>Archivos del carrete, por USB. Aquí se elimina de forma definitiva: el dispositivo no tiene papelera.</translation>
    </message>
    <message>
        <source>Reading camera roll…</source>
        <translation>Leyendo el carrete…</translation>
    </message>
    <message>
        <source>This permanently deletes the files from the device. It cannot be undone. Export anything you want to keep first.</source>
        <translation>Los archivos se eliminarán definitivamente del dispositivo. Esta acción no se puede deshacer. Exporte antes lo que quiera conservar.</translation>
    </message>
    <message>
        <source>Delete Permanently</source>
        <translation>Eliminar definitivamente</translation>
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
        <translation>Abrir Korvane</translation>
    </message>
    <message>
        <source>Scan System Junk</source>
        <translation>Analizar basura del sistema</translation>
    </message>
    <message>
        <source>Free Up RAM</source>
        <translation>Liberar RAM</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Salir de Korvane</translation>
    </message>
</context>
<context>
    <name>ModuleGrid</name>
    <message>
        <source>Modules</source>
        <translation>Módulos</translation>
    </message>
</context>
<context>
    <name>ResultRow</name>
    <message>
        <source>Not selected by default — may be in use or needed by the system.</source>
        <translation>No seleccionado de forma predeterminada: puede estar en uso o ser necesario para el sistema.</translation>
    </message>
</context>
<context>
    <name>ResultsHeader</name>
    <message>
        <source>Deselect All</source>
        <translation>Deseleccionar todo</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Volver a analizar</translation>
    </message>
</context>
<context>
    <name>ResultsList</name>
    <message>
        <source>Findings</source>
        <translation>Resultados</translation>
    </message>
</context>
<context>
    <name>ResultsView</name>
    <message>
        <source>Clean</source>
        <translation>Limpiar</translation>
    </message>
</context>
<context>
    <name>ScanView</name>
    <message>
        <source>Start Scan</source>
        <translation>Iniciar análisis</translation>
    </message>
    <message>
        <source>Clean the selected items?</source>
        <translation>¿Limpiar los ítems seleccionados?</translation>
    </message>
</context>
<context>
    <name>ScanningApps</name>
    <message>
        <source>Scanning applications…</source>
        <translation>Analizando aplicaciones…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ScanningView</name>
    <message>
        <source>Scanning…</source>
        <translation>Analizando…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
</context>
<context>
    <name>ShareBar</name>
    <message>
        <source>Shares of the categories</source>
        <translation>Partes de las categorías</translation>
    </message>
</context>
<context>
    <name>ShareLegend</name>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Modules</source>
        <translation>Módulos</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Limpieza</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Rendimiento</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
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
        <translation>Menú de la aplicación</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>Quit Korvane</source>
        <translation>Salir de Korvane</translation>
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
        <translation>Usado</translation>
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
        <translation>Disco de arranque</translation>
    </message>
    <message>
        <source>Used space of the startup disk</source>
        <translation>Espacio usado del disco de arranque</translation>
    </message>
    <message>
        <source>Smart Scan</source>
        <translation>Análisis inteligente</translation>
    </message>
</context>
<context>
    <name>TaskCard</name>
    <message>
        <source>Run</source>
        <translation>Ejecutar</translation>
    </message>
</context>
<context>
    <name>TaskGrid</name>
    <message>
        <source>Maintenance tasks</source>
        <translation>Tareas de mantenimiento</translation>
    </message>
</context>
<context>
    <name>TaskStatus</name>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>UninstallerView</name>
    <message>
        <source>Scan Applications</source>
        <translation>Analizar aplicaciones</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Korvane is already running, but it does not answer.</source>
        <translation>Korvane ya se está ejecutando, pero no responde.</translation>
    </message>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Wait until it has finished what it is doing, or end it, and open Korvane again.</source>
        <translation>Espere a que termine lo que está haciendo, o fuerce su salida, y abra Korvane de nuevo.</translation>
    </message>
</context>
</TS>
