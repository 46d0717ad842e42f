<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>Geben Sie Konto und Passwort ein.</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>Kontoaktion konnte nicht ausgeführt werden</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>Konto merken</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>Melden Sie sich mit Ihrem Tovra-Konto an, um Verbindungen herzustellen und die verfügbaren Standorte abzurufen.</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>E-Mail oder Benutzer-ID</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>Passwort vergessen?</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>Anmeldung läuft...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>Verlängern</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>Angemeldet</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>Benutzer-ID: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>Tarif: %1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>Verbleibende Tage: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>Max. gleichzeitige Geräte: %1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>Abmeldung läuft...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>Wird geöffnet…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>App</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>Ändern…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei Anmeldung starten</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>Tovra im Infobereich starten, wenn Sie sich am Desktop anmelden.</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>Fenster beim Start anzeigen</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>Dieses Fenster öffnen, wenn Tovra startet; sonst erscheint nur das Symbol im Infobereich.</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>Wie Desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>Hell, dunkel oder wie der Desktop.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Sprache ändern</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1, wie der Desktop</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>Autostart konnte nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>Anzeigen…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>Tastenkürzel anzeigen</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>Alle Tasten, die in diesem Fenster funktionieren.</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>Standort %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>Weitere Standorte</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>Standorte: %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>Latenz nicht gemessen</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>nicht in Ihrem Tarif</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>Ihr Tarif enthält diesen Standort nicht. Führen Sie ein Upgrade durch, um ihn zu nutzen.</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>Diese Liste ist möglicherweise veraltet.</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>Gesperrt: erfordert den Tarif %1. Führen Sie ein Upgrade durch, um ihn zu nutzen.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>API-URL</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>Auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Letzter Standort</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>Schnellster Standort</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>Automatisch verbinden</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>Womit sich der Tovra-Dienst beim Start verbindet.</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>API-URL speichern</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>API-URL auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>Über diese Adresse erreicht der Tovra-Dienst die Konto- und Standortserver. Ändern Sie sie nur, wenn der Support Sie darum bittet.</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>Prüfung: %1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>Vom Tovra-Dienst geprüft</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>Nicht geprüft: Der Tovra-Dienst hat diese Adresse gespeichert, konnte sie aber nicht bestätigen</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>Afrika</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>Antarktis</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>Asien</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>Europa</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>Naher Osten</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>Nordamerika</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>Ozeanien</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>Südamerika</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>Der Tovra-Dienst läuft nicht.</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>Zugriff auf den Tovra-Dienst verweigert. Fügen Sie diesen Benutzer der Gruppe tovracli hinzu und melden Sie sich dann ab und wieder an.</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>Keine Verbindung zum Tovra-Dienst möglich.</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>Der Tovra-Dienst ist zu alt für Kill-Switch-Modi. Aktualisieren Sie Tovra.</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>Afghanistan</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>Åland-Inseln</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>Albanien</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>Algerien</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>Amerikanisch-Samoa</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>Andorra</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>Angola</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>Anguilla</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>Antigua und Barbuda</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>Argentinien</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>Armenien</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>Aruba</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Australien</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Österreich</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>Aserbaidschan</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>Bahamas</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>Bahrain</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>Bangladesch</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>Barbados</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>Belarus</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>Belgien</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>Belize</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>Benin</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>Bermuda</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>Bhutan</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>Bolivien</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>Bosnien und Herzegowina</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>Botsuana</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brasilien</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>Brunei Darussalam</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>Bulgarien</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>Burkina Faso</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>Burundi</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>Kambodscha</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>Kamerun</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Kanada</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>Kap Verde</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>Cayman-Inseln</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>Zentralafrikanische Republik</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>Tschad</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>Chile</translation>
    </message>
    <message>
        <source>China</source>
        <translation>China</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>Kolumbien</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>Komoren</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>Kongo</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>Demokratische Republik Kongo</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>Cookinseln</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>Costa Rica</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>Côte d&apos;Ivoire</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>Kroatien</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>Kuba</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>Zypern</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Tschechien</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Dänemark</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>Dschibuti</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>Dominica</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>Dominikanische Republik</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>Ecuador</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>Ägypten</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>El Salvador</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>Äquatorialguinea</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>Eritrea</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>Estland</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>Äthiopien</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>Falklandinseln (Malwinen)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>Färöer-Inseln</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>Fidschi</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finnland</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Frankreich</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>Französisch-Guyana</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>Französisch-Polynesien</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>Gabun</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>Gambia</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>Georgien</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Deutschland</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>Ghana</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>Gibraltar</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>Griechenland</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>Grönland</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>Grenada</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>Guadeloupe</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>Guam</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>Guatemala</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>Guernsey</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>Guinea</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>Guinea-Bissau</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>Guyana</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>Haiti</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>Heiliger Stuhl (Staat Vatikanstadt)</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>Honduras</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>Hongkong</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Ungarn</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>Island</translation>
    </message>
    <message>
        <source>India</source>
        <translation>Indien</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>Indonesien</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>Iran</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>Irak</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irland</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>Insel Man</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>Israel</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>Italien</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>Jamaika</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japan</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>Jersey</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>Jordanien</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>Kasachstan</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>Kenia</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>Kiribati</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>Nordkorea</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>Südkorea</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Kuwait</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>Kirgisistan</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>Laos</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>Lettland</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>Libanon</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>Lesotho</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>Liberia</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>Libyen</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Liechtenstein</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>Litauen</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>Luxemburg</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>Macao</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>Nordmazedonien</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>Madagaskar</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>Malawi</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>Malaysia</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>Malediven</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>Mali</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>Malta</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>Marshallinseln</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>Martinique</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>Mauretanien</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>Mauritius</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>Mayotte</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>Mexiko</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>Mikronesien, Föderierte Staaten von</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>Moldau</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>Monaco</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>Mongolei</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>Montenegro</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>Montserrat</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>Marokko</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>Mosambik</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Myanmar</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>Namibia</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>Nauru</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>Nepal</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Niederlande</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>Neukaledonien</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Neuseeland</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>Nicaragua</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>Niger</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>Nigeria</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>Niue</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>Norfolkinsel</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>Nördliche Marianen</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Norwegen</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>Oman</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>Pakistan</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>Palau</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>Palästina, Staat</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>Panama</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>Papua-Neuguinea</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>Paraguay</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>Philippinen</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Polen</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>Puerto Rico</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Katar</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>Réunion</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Rumänien</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>Russische Föderation</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>Ruanda</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>St. Helena, Ascension und Tristan da Cunha</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>St. Kitts und Nevis</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>St. Lucia</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>St. Pierre und Miquelon</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>St. Vincent und die Grenadinen</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>Samoa</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>San Marino</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>São Tomé und Príncipe</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>Saudi-Arabien</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>Senegal</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>Serbien</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>Seychellen</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>Sierra Leone</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Singapur</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>Slowakei</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>Slowenien</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>Salomoninseln</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>Somalia</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>Südafrika</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>Südsudan</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>Spanien</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>Sri Lanka</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>Sudan</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>Suriname</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>Eswatini</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Schweden</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Schweiz</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>Syrien</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>Taiwan</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>Tadschikistan</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>Tansania</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>Thailand</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>Timor-Leste</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>Togo</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>Tokelau</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>Tonga</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>Trinidad und Tobago</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>Tunesien</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Türkei</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>Turkmenistan</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>Turks- und Caicosinseln</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>Tuvalu</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>Uganda</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ukraine</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>Vereinigte Arabische Emirate</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Vereinigtes Königreich</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>Vereinigte Staaten</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>Uruguay</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>Usbekistan</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>Vanuatu</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>Venezuela</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>Vietnam</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>Britische Jungferninseln</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>Amerikanische Jungferninseln</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>Wallis und Futuna</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>Westsahara</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>Jemen</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>Sambia</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>Simbabwe</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra: kein Standort passt zu „%1“</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra: Tovra ist mit einer anderen Verbindung oder Anmeldung beschäftigt; versuchen Sie es erneut, wenn sie abgeschlossen ist</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra: Melden Sie sich vor dem Verbinden bei Tovra an</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra: Ihr Tarif enthält „%1“ nicht</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra: Die Anfrage ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>tovra: %1</source>
        <translation>tovra: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandLine</name>
    <message>
        <source>tovra: give only one of %1</source>
        <translation>tovra: Geben Sie nur eine dieser Optionen an: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>Tovra konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>Tovra ist nicht gestartet</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>das laufende Tovra ist eine ältere Version: Es wurde in den Vordergrund geholt, hat die Anfrage aber nicht ausgeführt; beenden Sie es und versuchen Sie es erneut</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>das laufende Tovra hat nicht geantwortet</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>Laufzeitordner</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>Statusdatei</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>Schlüssel für Zugangsdaten</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>Steuer-Socket</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>PID-Datei</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>Steueradresse</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>Protokolle öffnen</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>Verbindung reparieren</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>Setzt den Kill Switch, den lokalen Proxy und den Tunnel zurück, wenn der Datenverkehr hängt.</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>Der Protokollordner des Tovra-Dienstes, für den Support.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>Pfad für %1 kopieren</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>Dienstpfade</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>Wo der Tovra-Dienst seine Dateien ablegt.</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>Version des Tovra-Dienstes</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>Steuerprotokoll</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>Diese App verwendet Version 1.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1, nicht kompatibel</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>Text leeren</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>Autostart wird auf diesem System nicht unterstützt.</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>Das Tovra-Programm für den Autostart wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>Der Autostart-Ordner konnte nicht vorbereitet werden.</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>Der Tovra-Autostart konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>Der Tovra-Autostart konnte nicht geschützt werden.</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>Tovra konnte nicht aus dem Autostart entfernt werden.</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>Diese Tasten funktionieren überall im Tovra-Fenster. Mit Tab wechseln Sie zwischen den Bedienelementen.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>Schließen</translation>
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
        <translation>Sperrmodus</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>Sperrmodus nicht verfügbar</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>Der Kill Switch benötigt einen VPN-Modus</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>Der Kill Switch funktioniert nicht mit Tovra Proxy. Wechseln Sie zu Auto (empfohlen), TovraVPN oder WireGuard, um ihn einzuschalten.</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>Zu Auto wechseln und einschalten</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>Zu Auto wechseln und den Kill Switch einschalten</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>Modus wählen…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>Modus für den Kill Switch wählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>Tovra Proxy erfordert, dass der Kill Switch aus ist</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>Der Kill Switch blockiert Tovra Proxy. Schalten Sie zuerst den Kill Switch in den Einstellungen aus und wechseln Sie dann den Modus.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>Einstellungen öffnen, um den Kill Switch auszuschalten</translation>
    </message>
</context>
<context>
    <name>KillSwitchSection</name>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Block traffic outside the tunnel</source>
        <translation>Datenverkehr außerhalb des Tunnels blockieren</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>Blockiert Datenverkehr außerhalb des Tunnels, solange Tovra verbunden ist oder sich verbindet.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>Blockiert Datenverkehr außerhalb des Tunnels, solange der Kill Switch eingeschaltet ist, auch ohne Verbindung.</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Sperrmodus</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>Vom Tovra-Dienst festgelegt: Datenverkehr außerhalb des Tunnels bleibt blockiert und der Kill Switch lässt sich hier nicht ausschalten.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>Wann der Kill Switch Datenverkehr blockiert.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>Ob Drucker, Freigaben und andere Geräte in der Nähe erreichbar bleiben, während Datenverkehr blockiert wird.</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>Kill-Switch-Modus: %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Aktuell: %1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1. Der Tovra-Dienst hält den Kill Switch eingeschaltet; er lässt sich hier nicht ausschalten.</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>Tovra Proxy ist aktiv: Der Kill Switch benötigt einen VPN-Modus.</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Erreichbar</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>Blockiert</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>Systemsprache verwenden</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>Systemsprache verwenden (%1)</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>Sprache des Desktops übernehmen</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Sprache wählen</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>Tovra wird neu gestartet, um die neue Sprache anzuzeigen.</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Sprachen suchen</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>Sprache verwenden</translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>LocationsEmptyState</name>
    <message>
        <source>The Tovra service is not available.
Locations appear here as soon as it responds.</source>
        <translation>Der Tovra-Dienst ist nicht verfügbar.
Standorte erscheinen hier, sobald er antwortet.</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>Standorte werden geladen...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>Der Dienst bietet gerade keine Standorte an.
Versuchen Sie es gleich noch einmal mit „Aktualisieren“.</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>Noch keine Favoriten.
Markieren Sie einen Standort mit dem Stern (oder wählen Sie ihn aus und drücken Sie die Leertaste), um ihn hier abzulegen.</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>Keine Standorte in diesem Tab.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>Keine Treffer für „%1“.
Versuchen Sie es mit einem Land, einer Stadt oder einem Kürzel wie „de“.</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>Die Standorte konnten nicht geladen werden: %1
Drücken Sie „Aktualisieren“, um es erneut zu versuchen.</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>Aus Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Zu Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>Wählen Sie einen Standort in der Liste aus, um ihn mit einem Stern zu markieren</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>%1 aus Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>%1 zu Favoriten hinzufügen</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>Alle Standorte</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>Doppelklicken Sie auf einen Standort, um sich mit ihm zu verbinden, oder auf ein Land oder eine Stadt, um sich mit dem schnellsten Standort dort zu verbinden.</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>Länder, Städte, Standorte oder P2P suchen</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>Standorte suchen</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>Keiner der Standorte in %1 ist in Ihrem Tarif enthalten.</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>%1 ist nicht in Ihrem Tarif enthalten. Führen Sie ein Upgrade durch, um ihn zu nutzen.</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>Standortaktionen</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>Mit dem schnellsten Standort verbinden</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Einklappen</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Ausklappen</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Aus Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Zu Favoriten hinzufügen</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>Treffer in allen Tabs: %1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>Standorte: %1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Verbunden mit %1</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>Latenz wird gemessen...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>Diese Liste ist möglicherweise veraltet; „Aktualisieren“ lädt eine neue.</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>Gruppierung nach Region, bis die Gruppen des Dienstes eintreffen.</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Kostenlos</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>Standort-Tabs</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>Standorte sortieren</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>Reihenfolge des Dienstes</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Latenz</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>Reihenfolge der Standorte innerhalb jeder Gruppe</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>Standortliste neu laden und Latenz messen</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>Aktualisieren (%1 s)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>Standorte aktualisieren, wieder möglich in %1 s</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Standorte aktualisieren</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>Standorte</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation>Tovra</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <extracomment>Shown when a request to the Tovra service failed without a reason. Word it as a user would understand it: &quot;Could not complete the action&quot;</extracomment>
        <translation>Aktion konnte nicht ausgeführt werden</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>Einstellungen konnten nicht geändert werden</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>Modus konnte nicht geändert werden</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>Tovra wählt das Protokoll, das hier am besten funktioniert.</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>Ein schneller, moderner Tunnel für Ihren gesamten Datenverkehr.</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>Der gesamte Datenverkehr läuft durch den TovraVPN-Tunnel.</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>Standardmäßig durch den Tunnel; ausgewählte Regionen und Websites gehen direkt.</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>Kein Tunnel: Apps, die den lokalen Proxy nutzen, erreichen das Internet über Tovra.</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>Der lokale Proxy; ausgewählte Regionen und Websites gehen direkt.</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Wird angewendet…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>Der Kill Switch benötigt einen VPN-Modus: Wählen Sie Auto, WireGuard oder TovraVPN, um ihn einzuschalten.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>Modus wählen</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>Der aktuelle Modus wird angezeigt, sobald der Tovra-Dienst antwortet.</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>Aktueller Modus: %1. Diese Tovra-Version kennt ihn nicht; wählen Sie einen der obigen Modi, um ihn zu ersetzen.</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation>TovraVPN Split</translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation>TovraVPN Global</translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation>Tovra Proxy Split</translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation>Tovra Proxy Global</translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation>Routing-Modus</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>Legen Sie fest, wie Ihr Datenverkehr geleitet wird und welche Websites den Tunnel umgehen.</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>Standorte</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>System-Proxy</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>Direkt</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>Drucker, Freigaben und andere Geräte in Ihrem Netzwerk bleiben erreichbar</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Geschützt</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>Datenverkehr im lokalen Netzwerk wird wie alles andere geschützt</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>Die Proxy-Einstellungen des Desktops bleiben unverändert</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>Die Proxy-Einstellungen des Desktops verweisen auf Tovra</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>Die Proxy-Einstellungen des Desktops verweisen auf Tovra und bleiben so</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>Ob Geräte in Ihrem lokalen Netzwerk erreichbar bleiben, während Tovra Ihren Datenverkehr leitet.</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>Die Proxy-Einstellungen des Desktops auf Tovra verweisen lassen und sie optional vor Änderungen durch andere Programme schützen.</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>SOCKS5-Listener</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>HTTP-Listener</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>Listener anwenden</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>Lokale DNS-Server</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>Zum Beispiel 192.168.1.1, ::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>Server speichern</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>Server leeren</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>Split-DNS zurücksetzen</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>Ein und gesperrt</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>System-Proxy</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>Lässt die Proxy-Einstellungen des Desktops auf Tovra verweisen; „gesperrt“ hindert andere Programme daran, sie zu ändern.</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>Direkt</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Geschützt</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>„Direkt“ erreicht Geräte in der Nähe außerhalb des Tunnels; „Geschützt“ leitet alles durch ihn.</translation>
    </message>
    <message>
        <source>SOCKS5</source>
        <translation>SOCKS5</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>Local proxy listeners</source>
        <translation>Lokale Proxy-Listener</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>Adressen, an denen der Dienst Proxy-Verbindungen annimmt, als Host:Port. Lassen Sie ein Feld leer, um diesen Listener zu schließen.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>Lokales DNS</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>Entferntes DNS</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>Split-DNS</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>Welcher Resolver Namen auflöst, die außerhalb des Tunnels bleiben.</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>IP-Adressen der Resolver für lokale Namen, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>Wirksam: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>Wirksam: %1, Server %2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>(aus %1)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>(aus den Systemeinstellungen)</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>(aus Ihrer Liste)</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>Benachrichtigung schließen</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>Benachrichtigung: %1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>Eigene Split-Regeln unverändert</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>Nach Land, Stadt oder Standort suchen</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>Schnellverbindung suchen</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>Letzte Suchen</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Letzte Standorte</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>Land, Stadt oder Standortnamen eingeben</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>Keine Standorte passen zu „%1“</translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
</context>
<context>
    <name>QuickEntryPopup</name>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Präferenzen</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Einstellungen werden angewendet...</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>Änderungen werden wirksam, sobald der Tovra-Dienst sie bestätigt.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>Einstellungen können wieder geändert werden, sobald der Tovra-Dienst antwortet.</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>Warten auf den Tovra-Dienst...</translation>
    </message>
</context>
<context>
    <name>SettingsRow</name>
    <message>
        <source>%1: %2</source>
        <comment>row title: help text</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsValidator</name>
    <message>
        <source>Add a port: host:port, for example 127.0.0.1:1080.</source>
        <translation>Geben Sie einen Port an: Host:Port, zum Beispiel 127.0.0.1:1080.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>„%1“ ist keine IPv6-Adresse.</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>Schreiben Sie eine IPv6-Adresse in eckigen Klammern: [::1]:1080.</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>Geben Sie vor dem Port einen Host an: Host:Port.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>„%1“ ist kein Hostname und keine IP-Adresse.</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>Geben Sie nach dem Doppelpunkt einen Port an: Host:Port.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Der Port muss eine Zahl von 1 bis 65535 sein.</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>Geben Sie eine API-URL ein oder setzen Sie sie auf den Standard zurück.</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>Die API-URL muss mit http:// oder https:// beginnen.</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>Die API-URL benötigt einen Host, zum Beispiel https://api.example.com.</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>Geben Sie mindestens einen DNS-Server ein oder leeren Sie die Liste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>„%1“ ist keine IP-Adresse.</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>Wählen Sie TovraVPN Split oder Tovra Proxy Split, um einen Teil des Datenverkehrs direkt zu leiten: nach Region, nach der GFWList oder nach eigenen Regeln.</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>Standardroute</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>Direkt</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>Alles, was unten nicht ausgewählt ist, geht direkt</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Regionen wählen</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regionen</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Eigene Split-Regeln</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>Regeln bearbeiten…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>Eigene Split-Regeln bearbeiten</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>Split-Tunneling</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>Optionen für TovraVPN Split</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>Optionen für Tovra Proxy Split</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Tunnel</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the tunnel</source>
        <translation>Alles, was unten nicht ausgewählt ist, geht durch den Tunnel</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>Alles, was unten nicht ausgewählt ist, geht über den Proxy</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>Datenverkehr geht direkt, sofern keine Region, die GFWList oder eine Regel etwas anderes vorgibt.</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>Datenverkehr geht durch den Tunnel, sofern keine Region oder Regel ihn direkt leitet.</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>Datenverkehr geht über den Proxy, sofern keine Region oder Regel ihn direkt leitet.</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>Keine Regionen ausgewählt.</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>Direkt: %1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>Durch den Tunnel: %1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>Über den Proxy: %1</translation>
    </message>
    <message>
        <source>GFWList → Tunnel</source>
        <translation>GFWList → Tunnel</translation>
    </message>
    <message>
        <source>GFWList → Proxy</source>
        <translation>GFWList → Proxy</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the tunnel.</source>
        <translation>Websites auf der GFWList gehen immer durch den Tunnel.</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>Websites auf der GFWList gehen immer über den Proxy.</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>Ihre eigenen Domain- und Adresslisten.</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>Ihre eigenen Domain- und Adresslisten. Gespeicherte Regeln: %1.</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>Anmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>Abmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>Konto konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>Verlängerungsseite konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>Standorte werden aktualisiert...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>Die Standorte werden bereits aktualisiert</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>Favorit konnte nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>Standorte konnten nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>Standortgruppen konnten nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>Standorte aktualisiert</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>Verbindung mit diesem Standort fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>Verbindung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>Trennen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>Sprache konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>Tovra wird neu gestartet, um die Sprache der Oberfläche zu übernehmen.</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>Tovra konnte nicht neu gestartet werden. Bitte starten Sie die App manuell neu.</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>Modus konnte nicht gewechselt werden</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>Lokales Netzwerk konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>System-Proxy konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>Bitte warten Sie, bis der aktuelle Vorgang abgeschlossen ist</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>Wählen Sie einen VPN-Modus, um den Kill Switch einzuschalten</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>Kill Switch konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>Eigene Split-Regeln aktualisiert, aber die Regeln konnten nicht neu geladen werden</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>Split-Regeln konnten nicht geladen werden</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>Split-Regeln konnten nicht importiert werden</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>Eigene Split-Regeln aktualisiert (%n Regel)</numerusform>
            <numerusform>Eigene Split-Regeln aktualisiert (%n Regeln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>Konfigurationspfade konnten nicht geladen werden</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>API-URL konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>API-URL auf Standard zurückgesetzt</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>API-URL geprüft und gespeichert</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>API-URL gespeichert, aber nicht geprüft</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>Automatisches Verbinden konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>Proxy-Adresse konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>Proxy-Adresse gespeichert, gilt ab der nächsten Verbindung</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>Proxy-Adresse aktualisiert</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>Split-DNS konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>Split-DNS aktualisiert</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>Reparatur fehlgeschlagen</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>Reparatur abgeschlossen</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>Kompatibilität des Tovra-Dienstes wird geprüft...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>Tovra-Oberfläche und -Dienst sind nicht kompatibel. Aktualisieren Sie Tovra, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>Version konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>Version der Oberfläche ist nicht verfügbar</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Suche nach Updates fehlgeschlagen</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>Tovra ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>Vor dem Verbinden wird ein erforderliches Tovra-Update geprüft.</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>Die laufende Update-Prüfung wird abgeschlossen, bevor der Download beginnt...</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>Update-Informationen sind nicht verfügbar. Suchen Sie erneut nach Updates.</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>Wird abgebrochen...</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>Der Start des Downloads konnte nicht bestätigt werden. Status wird geprüft...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>Download des Updates konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>Abbruch konnte nicht bestätigt werden. Neuer Versuch...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>Download-Fortschritt konnte nicht gelesen werden. Neuer Versuch...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>Der Download war abgeschlossen, bevor er abgebrochen werden konnte. Das Installationsprogramm wurde nicht geöffnet.</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>Das Update wurde heruntergeladen, aber das Installationsprogramm konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>Der Download gehört zu einer anderen Update-Version. Suchen Sie erneut nach Updates.</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>Kill Switch konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>API-URL konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>Split-DNS konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>Tovra-Dienst nicht erreichbar</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>Sprachen konnten nicht geladen werden</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Suche nach Updates...</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>Tovra %1 ist verfügbar</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>Vor dem Verbinden muss ein erforderliches Tovra-Update installiert werden.</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>Der Tovra-Dienst ist nicht verfügbar</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>Der Tovra-Dienst hat nicht geantwortet</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>Vor dem Verbinden muss ein erforderliches Tovra-Update installiert werden</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>Eine andere Verbindungsanfrage hat diese ersetzt</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Regionen wählen</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>Länder suchen</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Länder</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>Datenverkehr zu den markierten Regionen geht direkt, außerhalb des Tunnels. Alles andere geht durch den Tunnel.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>Datenverkehr zu den markierten Regionen geht direkt, nicht über den Proxy. Alles andere geht über den Proxy.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>Datenverkehr zu den markierten Regionen geht durch den Tunnel. Alles andere geht direkt.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>Datenverkehr zu den markierten Regionen geht über den Proxy. Alles andere geht direkt.</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>Markiert: %1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>Kein Land passt zu „%1“.</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>Regelliste</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Eigene Split-Regeln</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>Eine Domain, IP-Adresse oder ein CIDR-Bereich pro Zeile, etwa example.org, 203.0.113.7 oder 10.0.0.0/8. Zeilen, die mit # beginnen, sind Kommentare.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>example.org
*.example.net
203.0.113.0/24</source>
        <translation>example.org
*.example.net
203.0.113.0/24</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button</extracomment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>Die ausgewählte Liste durch diese Regeln ersetzen</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>Direkt</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blockieren</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>Websites und Adressen, die immer direkt gehen</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>Websites und Adressen, die immer über Tovra gehen</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>Websites und Adressen, die blockiert werden</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>Regeln werden geladen…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>Der Tovra-Dienst meldet keine Regellisten.</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>Regeln sind noch nicht geladen.</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>Regeln: %1 · Zeilen: %2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>nicht importiert</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>wird importiert…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>Es wurde nichts importiert. Korrigieren Sie zuerst diese Zeilen:</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>Zeile %1: „%2“ ist keine Domain, IP-Adresse und kein CIDR-Bereich.</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… Fehlerhafte Zeilen insgesamt: %1.</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra: Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra: Verbindung mit %1 wird hergestellt...</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: TovraVPN Split wird aktualisiert...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra: TovraVPN-Regionen werden aktualisiert...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra: TovraVPN-GFWList wird aktualisiert...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra: Eigene TovraVPN-Regeln werden aktualisiert...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra: Tovra Proxy Split wird aktualisiert...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra: Tovra-Proxy-Regionen werden aktualisiert...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra: Tovra-Proxy-GFWList wird aktualisiert...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>Aktion konnte nicht ausgeführt werden</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>Protokollordner</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1 existiert nicht: %2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>%1 konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>Aktuell: wird geladen...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>Standorte aktualisieren</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>Standorte werden geladen...</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Mode: TovraVPN</source>
        <translation>Modus: TovraVPN</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Global</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>Split-Optionen</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>Standard: Tunnel</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>Standard: Direkt</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Regionen</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; Tunnel</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>Eigene Split-Regeln</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>Modus: Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>Standard: Proxy</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; Proxy</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra: wird gestartet...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>Dienst: wird geprüft...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>Tovra öffnen...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>System-Proxy</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>LAN-Zugriff</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>Direkt</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Geschützt</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>Status aktualisieren</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>Protokolle öffnen</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>Konto: wird geprüft...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra: Dienst nicht verfügbar</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>Dienst nicht verfügbar</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>Konto: nicht verfügbar</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra – Dienst nicht verfügbar</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra: Wechsel zu Auto...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra: Wechsel zu WireGuard...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra: Wechsel zu TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: Wechsel zu TovraVPN Split...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra: Wechsel zu Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra: Wechsel zu Tovra Proxy Split...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>System-Proxy: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>Lokales Netzwerk: %1</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Tunnel</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>Regionen über %1: %2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>Standorte konnten nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>Standorte konnten nicht geladen werden</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>Standortgruppen konnten nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>Standortgruppen konnten nicht geladen werden</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>Standorte werden aktualisiert...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>Standorte nicht geladen</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>Keine zwischengespeicherten Standorte</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>Keine Standorte</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>Aktuell: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>Standorte aktualisieren (%1 s)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Standort: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>Standort: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>Aktuell: %1 (veraltet)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>unter 1 Min.</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 Std.</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 Std. %2 Min.</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 Tg.</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 Tg. %2 Std.</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra: Verbindung wird getrennt...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra: Abmeldung läuft...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra: System-Proxy wird aktualisiert...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra: Routing im lokalen Netzwerk wird aktualisiert...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra: Kill Switch wird eingeschaltet...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra: Kill Switch wird ausgeschaltet...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra: Verbindung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra: Trennen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>Abgemeldet</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>Kontoaktion konnte nicht ausgeführt werden</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>Modus konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>Modus geändert</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>System-Proxy auf %1 gesetzt</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Aktualisiert</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>Kill Switch eingeschaltet</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>Kill Switch ausgeschaltet</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>Kill Switch konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>getrennt</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>wird verbunden</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>wird getrennt</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>Dienst: %1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>Dienst: %1 (%2)</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>Konto: zwischengespeichert</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>Konto: Anmeldung erforderlich</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>Konto: %1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>Konto: angemeldet</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>Kill Switch: %1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>Ein</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · Gesperrt: erfordert den Tarif %2</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>Der Download-Status des Updates konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Download abgebrochen.</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>Das Update konnte nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>Download abgeschlossen. Installationsprogramm wird geöffnet...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>Der Download-Link ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>Der Download-Link des Updates konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>Der Download-Link wurde in Ihrem Browser geöffnet. Tovra führt das Installationsprogramm nicht automatisch aus.</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>Tovra-Update</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>Tovra muss aktualisiert werden, bevor Sie eine Verbindung herstellen können. Laden Sie das Installationsprogramm herunter oder beenden Sie Tovra.</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>Neuerungen</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Download-Fortschritt</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>Dieses Update ausblenden</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>Tovra beenden</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>Tovra ohne Update beenden</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>Download-Link öffnen</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>Download-Link des Tovra-Updates öffnen</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>Ein erforderliches Update ist verfügbar</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>Ein neues Tovra-Update ist verfügbar</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Neueste</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>Aktuelle Version: %1
Verfügbare Version: %2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>Versionshinweise sind nicht verfügbar.</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>%1 von %2 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Update wird heruntergeladen...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>Download wird vorbereitet...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>Download wird überprüft...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>Download wird abgebrochen...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>Im Hintergrund laden</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>Das neueste Installationsprogramm herunterladen, ohne Ihre aktuelle Sitzung zu unterbrechen.</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>Dieses Fenster ausblenden, während das Update heruntergeladen wird</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>Wird abgebrochen...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>Download des Updates abbrechen</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>Download abbrechen</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>Installationsprogramm wird geöffnet...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>Download des Updates erneut versuchen</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>Update laden</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>Tovra-Update herunterladen und installieren</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>Download wird erneut versucht...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Tovra für Linux</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>Die Version dieser App.</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>Beim Tovra-Dienst nach einer neueren Version fragen.</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (Build %2)</translation>
    </message>
</context>
<context>
    <name>VpnKillSwitchRow</name>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connect</source>
        <extracomment>Button that connects the VPN</extracomment>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>Wird getrennt…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>Dienst nicht verfügbar</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>Warten auf Antwort des Tovra-Dienstes.</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>Abgemeldet</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>Melden Sie sich bei Ihrem Tovra-Konto an, um eine Verbindung herzustellen.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Letzter Standort</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>Ihr Datenverkehr läuft durch den Tovra-Tunnel.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbindung wird hergestellt…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>Tunnel wird eingerichtet.</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Verbindung mit %1 wird hergestellt</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>Tunnel wird geschlossen.</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>Der Kill Switch blockiert den Datenverkehr, bis Sie sich verbinden.</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>Ihr Datenverkehr ist nicht geschützt.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Verbunden mit %1</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Verbindung fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>Standorte, mit denen Sie sich verbinden, erscheinen hier.</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Letzte Standorte</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>Letzte Standorte leeren</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Mit %1 verbinden</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>Verbunden seit %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Modus: %1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation>Link konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>Protokollordner ist nicht verfügbar</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>Protokollordner existiert nicht: %1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>Protokollordner konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>Kontoaktion konnte nicht ausgeführt werden</translation>
    </message>
</context>
<context>
    <name>WindowShortcuts</name>
    <message>
        <source>Ctrl+1</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show the VPN page</source>
        <translation>VPN-Seite anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>Seite „Standorte“ anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>Seite „Modus“ anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>Seite „Einstellungen“ anzeigen</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>Seite „Konto“ anzeigen</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>Suchen: das Schnellverbindungsfeld auf der VPN-Seite, die Liste auf der Seite „Standorte“</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Standorte aktualisieren</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>Fenster schließen; Tovra bleibt im Infobereich</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>Tovra beenden</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>Liste, Menü oder Dialog schließen</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>Diese Tastenkürzel anzeigen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
</TS>
