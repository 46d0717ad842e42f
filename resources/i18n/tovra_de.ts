<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AccountPage</name>
    <message>
        <source>Your account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect and sync available locations.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>Der Anmeldestart wird auf diesem System nicht unterstützt.</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>Das Tovra-Programm für den Anmeldestart wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>Der Ordner für den Anmeldestart konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>Der Tovra-Anmeldestart konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>Der Tovra-Anmeldestart konnte nicht geschützt werden.</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>Tovra konnte nicht aus dem Anmeldestart entfernt werden.</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Sperre</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>Sperre nicht verfügbar</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every location of the service appears here, with your favourites.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VPN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying the mode...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VPN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill switch, DNS, proxies, language, appearance and updates appear here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Custom split rules unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your connection status and quick connect appear here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
