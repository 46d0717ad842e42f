<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>Automático</translation>
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
