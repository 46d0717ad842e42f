<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
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
</context>
</TS>
