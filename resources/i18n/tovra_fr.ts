<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>Saisissez votre compte et votre mot de passe.</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>Impossible d’effectuer l’action sur le compte</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>Mémoriser ce compte</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>Connectez-vous avec votre compte Tovra pour utiliser le VPN et synchroniser les emplacements disponibles.</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>E-mail ou identifiant</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>S’inscrire</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>Mot de passe oublié&#xa0;?</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>Connexion au compte...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>Renouveler</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>Compte connecté</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>Identifiant&#xa0;: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>Forfait&#xa0;: %1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>Jours restants&#xa0;: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>Appareils simultanés max.&#xa0;: %1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>Déconnexion du compte...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>Ouverture…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>Démarrer Tovra dans la zone de notification quand vous ouvrez votre session.</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>Afficher la fenêtre au lancement</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>Ouvrir cette fenêtre au démarrage de Tovra&#xa0;; sinon, seule l’icône de la zone de notification apparaît.</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>Clair, sombre ou comme le bureau.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Changer de langue</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1, comme le bureau</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>Impossible de modifier le lancement à l’ouverture de session</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>Afficher…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>Afficher les raccourcis clavier</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>Toutes les touches utilisables dans cette fenêtre.</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>Emplacement %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>Autres emplacements</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>emplacements&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>latence non mesurée</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>favori</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>connecté</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>non inclus dans votre forfait</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>Votre forfait n’inclut pas cet emplacement. Passez à une offre supérieure pour l’utiliser.</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>Cette liste n’est peut-être pas à jour.</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>Verrouillé : nécessite le forfait %1. Passez à une offre supérieure pour l’utiliser.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>URL de l’API</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Dernier emplacement</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>Emplacement le plus rapide</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>Connexion automatique</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>Ce à quoi le service Tovra se connecte au démarrage.</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>Enregistrer l’URL de l’API</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>Rétablir l’URL de l’API par défaut</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>L’adresse par laquelle le service Tovra joint les serveurs de comptes et d’emplacements. Ne la modifiez que si l’assistance vous le demande.</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>Vérification&#xa0;: %1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>Vérifiée par le service Tovra</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>Non vérifiée&#xa0;: le service Tovra a enregistré cette adresse mais n’a pas pu la confirmer</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>Afrique</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>Antarctique</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>Asie</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>Europe</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>Moyen-Orient</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>Amérique du Nord</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>Océanie</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>Amérique du Sud</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>Le service Tovra n’est pas en cours d’exécution.</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>Accès au service Tovra refusé. Ajoutez cet utilisateur au groupe tovracli, puis fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>Impossible de joindre le service Tovra.</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>Le service Tovra est trop ancien pour les modes du Kill Switch. Mettez Tovra à jour.</translation>
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
        <translation>Åland, Îles</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>Albanie</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>Algérie</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>Samoa américaines</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>Andorre</translation>
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
        <translation>Antigua-et-Barbuda</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>Argentine</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>Arménie</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>Aruba</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Australie</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Autriche</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>Azerbaïdjan</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>Bahamas</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>Bahreïn</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>Bangladesh</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>Barbade</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>Bélarus</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>Belgique</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>Belize</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>Bénin</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>Bermudes</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>Bhoutan</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>Bolivie</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>Bosnie-Herzégovine</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>Botswana</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brésil</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>Brunéi Darussalam</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>Bulgarie</translation>
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
        <translation>Cambodge</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>Cameroun</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Canada</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>Cap-Vert</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>îles Caïmans</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>République centrafricaine</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>Tchad</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>Chili</translation>
    </message>
    <message>
        <source>China</source>
        <translation>Chine</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>Colombie</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>Comores</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>République du Congo</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>République démocratique du Congo</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>îles Cook</translation>
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
        <translation>Croatie</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>Cuba</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>Chypre</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Tchéquie</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Danemark</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>Djibouti</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>Dominique</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>République dominicaine</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>Équateur</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>Égypte</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>Salvador</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>Guinée Équatoriale</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>Érythrée</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>Estonie</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>Éthiopie</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>Malouines, Îles (Falkland)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>îles Féroé</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>Fidji</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlande</translation>
    </message>
    <message>
        <source>France</source>
        <translation>France</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>Guyane française</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>Polynésie française</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>Gabon</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>Gambie</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>Géorgie</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Allemagne</translation>
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
        <translation>Grèce</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>Groënland</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>Grenade</translation>
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
        <translation>Guernesey</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>Guinée</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>Guinée-Bissau</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>Guyana</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>Haïti</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>Saint-Siège (état de la cité du Vatican)</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>Honduras</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>Hong Kong</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Hongrie</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>Islande</translation>
    </message>
    <message>
        <source>India</source>
        <translation>Inde</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>Indonésie</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>Iran, République islamique d&apos;</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>Irak</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irlande</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>Île de Man</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>Israël</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>Italie</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>Jamaïque</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japon</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>Jersey</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>Jordanie</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>Kazakhstan</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>Kenya</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>Kiribati</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>Corée du Nord</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>Corée du Sud</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Koweït</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>Kirghizistan</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>Lao, République démocratique populaire</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>Lettonie</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>Liban</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>Lesotho</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>Libéria</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>Libye</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Liechtenstein</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>Lituanie</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>Luxembourg</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>Macau</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>Macédoine du Nord</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>Madagascar</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>Malawi</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>Malaisie</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>Maldives</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>Mali</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>Malte</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>Îles Marshall</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>Martinique</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>Mauritanie</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>Maurice</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>Mayotte</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>Mexique</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>Micronésie, États fédérés de</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>Moldavie</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>Monaco</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>Mongolie</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>Monténégro</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>Montserrat</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>Maroc</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>Mozambique</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Birmanie</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>Namibie</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>Nauru</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>Népal</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Pays-Bas</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>Nouvelle-Calédonie</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Nouvelle-Zélande</translation>
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
        <translation>Nioue</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>île Norfolk</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>Îles Mariannes du Nord</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Norvège</translation>
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
        <translation>Palaos</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>Palestine, État de</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>Panama</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>Papouasie-Nouvelle-Guinée</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>Paraguay</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>Pérou</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>Philippines</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Pologne</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>Porto Rico</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Qatar</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>Réunion, Île de la</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Roumanie</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>Russie, Fédération de</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>Rwanda</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>Sainte-Hélène, Ascension et Tristan da Cunha</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>Saint-Christophe-et-Niévès</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>Sainte-Lucie</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>Saint-Pierre-et-Miquelon</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>Saint-Vincent-et-les-Grenadines</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>Samoa</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>Saint-Marin</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>Sao Tomé-et-Principe</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>Arabie saoudite</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>Sénégal</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>Serbie</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>Seychelles</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>Sierra Leone</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Singapour</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>Slovaquie</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>Slovénie</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>Salomon, Îles</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>Somalie</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>Afrique du Sud</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>Soudan du Sud</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>Espagne</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>Sri Lanka</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>Soudan</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>Surinam</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>Eswatini</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Suède</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Suisse</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>Syrienne, République arabe</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>Taïwan</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>Tadjikistan</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>Tanzanie</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>Thaïlande</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>Timor oriental</translation>
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
        <translation>Trinité-et-Tobago</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>Tunisie</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Turquie</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>Turkménistan</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>îles Turques-et-Caïques</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>Tuvalu</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>Ouganda</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ukraine</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>Émirats arabes unis</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Royaume-Uni</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>États-Unis</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>Uruguay</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>Ouzbékistan</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>Vanuatu</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>Vénézuela</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>Viêt Nam</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>Îles Vierges britanniques</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>Îles Vierges, États-Unis</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>Wallis et Futuna</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>Sahara occidental</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>Yémen</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>Zambie</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>Zimbabwe</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra : aucun emplacement ne correspond à « %1 »</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra : Tovra est occupé par une autre connexion ou un autre changement de compte ; réessayez une fois terminé</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra : connectez-vous à Tovra avant de vous connecter au VPN</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra : votre forfait n’inclut pas « %1 »</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra : la demande a échoué</translation>
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
        <translation>tovra : indiquez une seule de ces options : %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>impossible de démarrer Tovra</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>Tovra n’a pas démarré</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>le Tovra en cours d’exécution est une version plus ancienne : il est passé au premier plan sans traiter la demande ; quittez-le et réessayez</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>le Tovra en cours d’exécution n’a pas répondu</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>Dossier d’exécution</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>Journaux</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>Fichier d’état</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>Clé des identifiants</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>Socket de contrôle</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>Fichier PID</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>Adresse de contrôle</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostic</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>Réparer</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>Voir les journaux</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>Réparer la connexion</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>Réinitialise le Kill Switch, le proxy local et le tunnel quand le trafic est bloqué.</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>Le dossier des journaux du service Tovra, pour l’assistance.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>Copier le chemin&#xa0;: %1</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>Chemins du service</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>Emplacement des fichiers du service Tovra.</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>Version du service Tovra</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>Protocole de contrôle</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>Cette application utilise la version 1.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non défini</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1, non compatible</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>Effacer le texte</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>Le lancement à l’ouverture de session n’est pas pris en charge sur ce système.</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>Impossible de trouver l’exécutable de Tovra pour le lancement à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>Impossible de préparer le dossier de lancement à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>Impossible de modifier le lancement de Tovra à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>Impossible de sécuriser le lancement de Tovra à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>Impossible de retirer Tovra du lancement à l’ouverture de session.</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>Ces touches fonctionnent partout dans la fenêtre de Tovra. Tab passe d’une commande à l’autre.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>Indisponible</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Verrouillage</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>Verrouillage indisponible</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>Le Kill Switch nécessite un mode VPN</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>Le Kill Switch ne fonctionne pas avec Tovra Proxy. Passez en mode Auto (recommandé), TovraVPN ou WireGuard pour l’activer.</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>Passer en Auto et activer</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>Passer en Auto et activer le Kill Switch</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>Choisir un mode…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>Choisir un mode pour le Kill Switch</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>Tovra Proxy nécessite de désactiver le Kill Switch</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>Le Kill Switch bloque Tovra Proxy. Désactivez d’abord le Kill Switch dans les Paramètres, puis changez de mode.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>Ouvrir les Paramètres</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>Ouvrir les Paramètres pour désactiver le Kill Switch</translation>
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
        <translation>Bloquer le trafic hors du tunnel</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>Bloque le trafic hors du tunnel quand Tovra est connecté ou en cours de connexion.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Toujours</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>Bloque le trafic hors du tunnel tant que le Kill Switch est activé, même déconnecté.</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Verrouillage</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>Défini par le service Tovra&#xa0;: le trafic hors du tunnel reste bloqué et le Kill Switch ne peut pas être désactivé ici.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>Quand le Kill Switch bloque le trafic.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>Indique si les imprimantes, partages et autres appareils à proximité restent accessibles pendant le blocage du trafic.</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>Mode du Kill Switch&#xa0;: %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Actuellement&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1. Le service Tovra maintient le Kill Switch activé&#xa0;; il ne peut pas être désactivé ici.</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>Tovra Proxy est utilisé&#xa0;: le Kill Switch nécessite un mode VPN.</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Accessible</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>Bloqué</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>Utiliser la langue du système</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>Utiliser la langue du système (%1)</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>Suivre la langue du bureau</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Choisir une langue</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>Tovra redémarre pour afficher la nouvelle langue.</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Rechercher une langue</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Langues</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>Utiliser cette langue</translation>
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
        <translation>Le service Tovra n’est pas disponible.
Les emplacements s’afficheront ici dès qu’il répondra.</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>Chargement des emplacements...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>Le service ne propose aucun emplacement pour le moment.
Réessayez «&#xa0;Actualiser&#xa0;» dans un instant.</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>Aucun favori pour l’instant.
Ajoutez une étoile à un emplacement (ou sélectionnez-le et appuyez sur Espace) pour le retrouver ici.</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>Aucun emplacement dans cet onglet.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>Aucun résultat pour «&#xa0;%1&#xa0;».
Essayez un pays, une ville ou un code comme «&#xa0;de&#xa0;».</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>Impossible de charger les emplacements : %1
Appuyez sur « Actualiser » pour réessayer.</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>Retirer des favoris</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>Sélectionnez un emplacement dans la liste pour lui ajouter une étoile</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>Retirer %1 des favoris</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>Ajouter %1 aux favoris</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>Tous les emplacements</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>Double-cliquez sur un emplacement pour vous y connecter, ou sur un pays ou une ville pour vous connecter à son emplacement le plus rapide.</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>Rechercher des pays, villes, emplacements ou P2P</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>Rechercher des emplacements</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>Aucun des emplacements de %1 n’est inclus dans votre forfait.</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>%1 n’est pas inclus dans votre forfait. Passez à une offre supérieure pour l’utiliser.</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>Actions sur l’emplacement</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>Se connecter à l’emplacement le plus rapide</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Développer</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Retirer des favoris</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Ajouter aux favoris</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>Résultats dans tous les onglets&#xa0;: %1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>Emplacements&#xa0;: %1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connecté à %1</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>Mesure de la latence...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>Cette liste n’est peut-être pas à jour&#xa0;; «&#xa0;Actualiser&#xa0;» en récupère une nouvelle.</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>Regroupement par région en attendant les groupes du service.</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Gratuits</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>Onglets des emplacements</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>Trier les emplacements</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>Ordre du service</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Latence</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>Ordre des emplacements dans chaque groupe</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>Récupérer à nouveau la liste des emplacements et mesurer leur latence</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>Actualiser (%1 s)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>Actualiser les emplacements, de nouveau possible dans %1 s</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Actualiser les emplacements</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>Emplacements</translation>
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
        <translation>Impossible d’effectuer l’action</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>Impossible de modifier les paramètres</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>Impossible de changer de mode</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>Tovra choisit le protocole qui fonctionne le mieux ici.</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>Un tunnel rapide et moderne pour tout votre trafic.</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>Tout le trafic passe par le tunnel TovraVPN.</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>Le tunnel par défaut&#xa0;; les régions et sites choisis passent en direct.</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>Sans tunnel&#xa0;: les applications qui utilisent le proxy local accèdent à Internet via Tovra.</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>Le proxy local&#xa0;; les régions et sites choisis passent en direct.</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Application…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>Le Kill Switch nécessite un mode VPN&#xa0;: choisissez Auto, WireGuard ou TovraVPN pour l’activer.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>Choisir un mode</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>Le mode actuel s’affichera dès que le service Tovra répondra.</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>Mode actuel&#xa0;: %1. Cette version de Tovra ne le connaît pas&#xa0;; choisissez l’un des modes ci-dessus pour le remplacer.</translation>
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
        <translation>Mode de routage</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>Choisissez comment votre trafic est acheminé et quels sites contournent le tunnel.</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>Emplacements</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>Proxy système</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>Les imprimantes, partages et autres appareils de votre réseau restent accessibles</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Protégé</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>Le trafic du réseau local est protégé comme le reste</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>Les paramètres de proxy du bureau ne sont pas modifiés</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>Activé</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>Les paramètres de proxy du bureau pointent vers Tovra</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>Les paramètres de proxy du bureau pointent vers Tovra et sont maintenus ainsi</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>Indique si les appareils de votre réseau local restent accessibles pendant que Tovra achemine votre trafic.</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>Faire pointer les paramètres de proxy du bureau vers Tovra, et éventuellement empêcher les autres programmes de les modifier.</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>Écoute SOCKS5</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>Écoute HTTP</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>Appliquer les adresses</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>Serveurs DNS locaux</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>Par exemple 192.168.1.1,&#xa0;::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>Enregistrer les serveurs</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>Effacer les serveurs</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>Rétablir le DNS fractionné</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>Activé</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>Activé et verrouillé</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>Proxy système</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>Fait pointer les paramètres de proxy du bureau vers Tovra&#xa0;; «&#xa0;verrouillé&#xa0;» empêche les autres programmes de les modifier.</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Protégé</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>«&#xa0;Direct&#xa0;» joint les appareils à proximité hors du tunnel&#xa0;; «&#xa0;Protégé&#xa0;» fait tout passer par le tunnel.</translation>
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
        <translation>Écoute du proxy local</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>Adresses sur lesquelles le service accepte les connexions proxy, au format hôte:port. Laissez un champ vide pour fermer cette écoute.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>DNS local</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>DNS distant</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>DNS fractionné</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>Le résolveur qui répond pour les noms restant hors du tunnel.</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>Adresses IP des résolveurs pour les noms locaux, séparées par des virgules.</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>En vigueur&#xa0;: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>En vigueur&#xa0;: %1, serveurs %2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>(depuis %1)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>(depuis les paramètres du système)</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>(depuis votre liste)</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>Fermer la notification</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>Notification&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>Règles de fractionnement personnalisées inchangées</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>Rechercher un pays, une ville ou un emplacement</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>Recherche de connexion rapide</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>Recherches récentes</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Emplacements récents</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>Saisissez un pays, une ville ou un nom d’emplacement</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>Aucun emplacement ne correspond à «&#xa0;%1&#xa0;»</translation>
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
        <translation>Résultats de la recherche</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>Les modifications prennent effet dès que le service Tovra les confirme.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>Les paramètres pourront de nouveau être modifiés dès que le service Tovra répondra.</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>En attente du service Tovra...</translation>
    </message>
</context>
<context>
    <name>SettingsRow</name>
    <message>
        <source>%1: %2</source>
        <comment>row title: help text</comment>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>SettingsValidator</name>
    <message>
        <source>Add a port: host:port, for example 127.0.0.1:1080.</source>
        <translation>Ajoutez un port&#xa0;: hôte:port, par exemple 127.0.0.1:1080.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse IPv6.</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>Écrivez une adresse IPv6 entre crochets&#xa0;: [::1]:1080.</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>Ajoutez un hôte avant le port&#xa0;: hôte:port.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>«&#xa0;%1&#xa0;» n’est ni un nom d’hôte ni une adresse IP.</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>Ajoutez un port après les deux-points&#xa0;: hôte:port.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Le port doit être un nombre compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>Saisissez une URL d’API ou rétablissez la valeur par défaut.</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>L’URL de l’API doit commencer par http:// ou https://.</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>L’URL de l’API doit comporter un hôte, par exemple https://api.example.com.</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>Saisissez au moins un serveur DNS ou videz la liste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse IP.</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>Choisissez TovraVPN Split ou Tovra Proxy Split pour faire passer une partie du trafic en direct&#xa0;: par région, selon la GFWList ou selon vos propres règles.</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>Route par défaut</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>Tout ce qui n’est pas choisi ci-dessous passe en direct</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Choisir les régions</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Régions</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Règles de fractionnement personnalisées</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>Modifier les règles…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>Modifier les règles de fractionnement personnalisées</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>Tunnel fractionné</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>Options de TovraVPN Split</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>Options de Tovra Proxy Split</translation>
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
        <translation>Tout ce qui n’est pas choisi ci-dessous passe par le tunnel</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>Tout ce qui n’est pas choisi ci-dessous passe par le proxy</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>Le trafic passe en direct, sauf si une région, la GFWList ou une règle en décide autrement.</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>Le trafic passe par le tunnel, sauf si une région ou une règle le fait passer en direct.</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>Le trafic passe par le proxy, sauf si une région ou une règle le fait passer en direct.</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>Aucune région choisie.</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>En direct&#xa0;: %1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>Par le tunnel&#xa0;: %1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>Par le proxy&#xa0;: %1</translation>
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
        <translation>Les sites de la GFWList passent toujours par le tunnel.</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>Les sites de la GFWList passent toujours par le proxy.</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>Vos propres listes de domaines et d’adresses.</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>Vos propres listes de domaines et d’adresses. Règles enregistrées&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>Impossible de se connecter au compte</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>Impossible de se déconnecter du compte</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>Impossible de charger le compte</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>Impossible d’ouvrir la page de renouvellement</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>Actualisation des emplacements...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>Une mise à jour des emplacements est déjà en cours</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>Impossible de modifier le favori</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>Impossible d’actualiser les emplacements</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>Impossible d’actualiser les groupes d’emplacements</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>Emplacements mis à jour</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>Impossible de se connecter à cet emplacement</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>Connexion impossible</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>Déconnexion impossible</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>Impossible de changer la langue</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>Redémarrage de Tovra pour appliquer la langue de l’interface.</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>Impossible de redémarrer Tovra. Veuillez redémarrer l’application manuellement.</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>Impossible de changer de mode</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>Impossible de modifier le réseau local</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>Impossible de modifier le proxy système</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>Veuillez attendre la fin de l’opération en cours</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>Choisissez un mode VPN pour activer le Kill Switch</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>Impossible de modifier le Kill Switch</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>Règles de fractionnement personnalisées mises à jour, mais impossible de les recharger</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>Impossible de charger les règles de fractionnement</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>Impossible d’importer les règles de fractionnement</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>Règles de fractionnement personnalisées mises à jour (%n règle)</numerusform>
            <numerusform>Règles de fractionnement personnalisées mises à jour (%n règles)</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>Impossible de charger les chemins de configuration</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>Impossible de modifier l’URL de l’API</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>URL de l’API rétablie par défaut</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>URL de l’API vérifiée et enregistrée</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>URL de l’API enregistrée mais non vérifiée</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>Impossible de modifier la connexion automatique</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>Impossible de modifier l’adresse d’écoute du proxy</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>Adresse d’écoute du proxy enregistrée pour la prochaine connexion</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>Adresse d’écoute du proxy mise à jour</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>Impossible de modifier le DNS fractionné</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>DNS fractionné mis à jour</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>Échec de la réparation</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>Réparation terminée</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>Vérification de la compatibilité du service Tovra...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>L’interface et le service Tovra sont incompatibles. Mettez Tovra à jour avant de continuer.</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>Impossible de charger la version</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>La version de l’interface n’est pas disponible</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Impossible de rechercher les mises à jour</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>Tovra est à jour</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>Vérification d’une mise à jour obligatoire de Tovra avant la connexion.</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>Fin de la dernière recherche de mises à jour avant de lancer le téléchargement...</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>Les informations de mise à jour ne sont pas disponibles. Recherchez de nouveau les mises à jour.</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>Annulation...</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>Impossible de confirmer le début du téléchargement. Vérification de son état...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>Impossible de lancer le téléchargement de la mise à jour</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>Impossible de confirmer l’annulation. Nouvelle tentative...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>Impossible de lire la progression du téléchargement. Nouvelle tentative...</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>Le téléchargement s’est terminé avant de pouvoir être annulé. Le programme d’installation n’a pas été ouvert.</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>La mise à jour a été téléchargée, mais le programme d’installation n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>Le téléchargement correspond à une autre version de mise à jour. Recherchez de nouveau les mises à jour.</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>Impossible de charger le Kill Switch</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>Impossible de charger l’URL de l’API</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>Impossible de charger le DNS fractionné</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>Impossible de joindre le service Tovra</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>Impossible de charger les langues</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Recherche de mises à jour...</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>Tovra %1 est disponible</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>Une mise à jour obligatoire de Tovra doit être installée avant la connexion.</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>Le service Tovra n’est pas disponible</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>Le service Tovra n’a pas répondu</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>Une mise à jour obligatoire de Tovra doit être installée avant de se connecter</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>Une autre demande de connexion a remplacé celle-ci</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Choisir les régions</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>Rechercher un pays</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>Le trafic vers les régions cochées passe en direct, hors du tunnel. Tout le reste passe par le tunnel.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>Le trafic vers les régions cochées passe en direct, sans le proxy. Tout le reste passe par le proxy.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>Le trafic vers les régions cochées passe par le tunnel. Tout le reste passe en direct.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>Le trafic vers les régions cochées passe par le proxy. Tout le reste passe en direct.</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>Cochées&#xa0;: %1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>Aucun pays ne correspond à «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>Liste de règles</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Règles de fractionnement personnalisées</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>Un domaine, une adresse IP ou une plage CIDR par ligne, par exemple example.org, 203.0.113.7 ou 10.0.0.0/8. Les lignes commençant par # sont des commentaires.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
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
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>Remplacer la liste choisie par ces règles</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloquer</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>Sites et adresses qui passent toujours en direct</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>Sites et adresses qui passent toujours par Tovra</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>Sites et adresses bloqués</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>Chargement des règles…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>Le service Tovra n’indique aucune liste de règles.</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>Les règles ne sont pas encore chargées.</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>Règles&#xa0;: %1 · Lignes&#xa0;: %2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>non importé</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>importation…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>Rien n’a été importé. Corrigez d’abord ces lignes&#xa0;:</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>Ligne %1&#xa0;: «&#xa0;%2&#xa0;» n’est ni un domaine, ni une adresse IP, ni une plage CIDR.</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… Lignes incorrectes au total&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra&#xa0;: connexion...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra&#xa0;: connexion à %1...</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra&#xa0;: mise à jour de TovraVPN Split...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra&#xa0;: mise à jour des régions TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra&#xa0;: mise à jour de la GFWList TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra&#xa0;: mise à jour des règles personnalisées TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra&#xa0;: mise à jour de Tovra Proxy Split...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra&#xa0;: mise à jour des régions Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra&#xa0;: mise à jour de la GFWList Tovra Proxy...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>impossible d’effectuer l’action</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>dossier des journaux</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>%1 manquant</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1 n’existe pas&#xa0;: %2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>impossible d’ouvrir %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>Actuel&#xa0;: chargement...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>Actualiser les emplacements</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>Chargement des emplacements...</translation>
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
        <translation>Mode&#xa0;: TovraVPN</translation>
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
        <translation>Options de fractionnement</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>Par défaut&#xa0;: tunnel</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>Par défaut&#xa0;: direct</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Régions</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; tunnel</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>Règles de fractionnement personnalisées</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>Mode&#xa0;: Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>Par défaut&#xa0;: proxy</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; proxy</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra&#xa0;: démarrage...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>Service&#xa0;: vérification...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>Ouvrir Tovra...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>Proxy système</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>Réseau local</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>Accès au réseau local</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Protégé</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>Actualiser l’état</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>Ouvrir les journaux</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>Compte&#xa0;: vérification...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>Se déconnecter du compte</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra&#xa0;: service indisponible</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>service indisponible</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>Compte&#xa0;: indisponible</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra – service indisponible</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra&#xa0;: passage en mode Auto...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra&#xa0;: passage à WireGuard...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra&#xa0;: passage à TovraVPN...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra : passage à TovraVPN Split...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra&#xa0;: passage à Tovra Proxy...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra&#xa0;: passage à Tovra Proxy Split...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>Proxy système&#xa0;: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>Réseau local&#xa0;: %1</translation>
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
        <translation>Régions via %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>Impossible d’actualiser les emplacements</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>Impossible de charger les emplacements</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>Impossible d’actualiser les groupes d’emplacements</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>Impossible de charger les groupes d’emplacements</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>Actualisation des emplacements...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>Emplacements non chargés</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>Aucun emplacement en cache</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>Aucun emplacement</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>Actuel&#xa0;: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>Actualiser les emplacements (%1 s)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Emplacement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>Emplacement&#xa0;: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>Actuel&#xa0;: %1 (obsolète)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>moins d’1 min</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 j</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 j %2 h</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra&#xa0;: déconnexion...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra&#xa0;: déconnexion du compte...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra&#xa0;: mise à jour du proxy système...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra&#xa0;: mise à jour du routage du réseau local...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra&#xa0;: activation du Kill Switch...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra&#xa0;: désactivation du Kill Switch...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra&#xa0;: échec de la connexion</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra&#xa0;: échec de la déconnexion</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>Déconnecté du compte</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>impossible d’effectuer l’action sur le compte</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>impossible de changer de mode</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>Mode mis à jour</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>Proxy système réglé sur %1</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Mis à jour</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>Kill Switch activé</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>Kill Switch désactivé</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>impossible de modifier le Kill Switch</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>connecté</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>déconnecté</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>connexion en cours</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>déconnexion en cours</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>prêt</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra&#xa0;: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>en cours d’exécution</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>Service&#xa0;: %1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>Service&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>Compte&#xa0;: en cache</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>Compte&#xa0;: connexion requise</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>Compte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>Compte&#xa0;: connecté</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>Kill Switch&#xa0;: %1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>activé</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>verrouillé</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · Verrouillé : nécessite le forfait %2</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>Impossible de lire l’état du téléchargement de la mise à jour.</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Téléchargement annulé.</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>Impossible de télécharger la mise à jour.</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>Téléchargement terminé. Ouverture du programme d’installation...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>Le lien de téléchargement n’est pas disponible.</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>Impossible d’ouvrir le lien de téléchargement de la mise à jour.</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>Le lien de téléchargement s’est ouvert dans votre navigateur. Tovra ne lancera pas le programme d’installation automatiquement.</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>Mise à jour de Tovra</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>Tovra doit être mis à jour avant que vous puissiez vous connecter. Téléchargez le programme d’installation ou quittez Tovra.</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>Progression du téléchargement</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>Masquer cette mise à jour</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>Quitter Tovra</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>Quitter Tovra sans mettre à jour</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>Ouvrir le lien</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>Ouvrir le lien de téléchargement de la mise à jour de Tovra</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>Une mise à jour obligatoire est disponible</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>Une nouvelle mise à jour de Tovra est disponible</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnue</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Dernière</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>Version actuelle&#xa0;: %1
Version disponible&#xa0;: %2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>Les notes de version ne sont pas disponibles.</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>Téléchargement&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Téléchargement de la mise à jour...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>Préparation du téléchargement...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>Vérification du téléchargement...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>Annulation du téléchargement...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>Télécharger en arrière-plan</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>Télécharger le dernier programme d’installation sans interrompre votre session.</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>Masquer cette fenêtre pendant le téléchargement de la mise à jour</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>Annulation...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>Annuler le téléchargement de la mise à jour</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>Annuler le téléchargement</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>Lancement de l’installation...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>Relancer le téléchargement de la mise à jour</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>Télécharger la mise à jour</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>Télécharger et installer la mise à jour de Tovra</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>Nouvelle tentative de téléchargement...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Tovra pour Linux</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>La version de cette application.</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>Demander une version plus récente au service Tovra.</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (build %2)</translation>
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
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>Déconnexion…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>Service indisponible</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>En attente de la réponse du service Tovra.</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>Déconnecté du compte</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>Connectez-vous à votre compte Tovra pour utiliser le VPN.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Dernier emplacement</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>Votre trafic passe par le tunnel Tovra.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>Établissement du tunnel.</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Connexion à %1</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>Fermeture du tunnel.</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>Le Kill Switch bloque le trafic jusqu’à ce que vous vous connectiez.</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>Votre trafic n’est pas protégé.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connecté à %1</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Échec de la connexion : %1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>Les emplacements auxquels vous vous connectez apparaissent ici.</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Emplacements récents</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>Effacer les emplacements récents</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Se connecter à %1</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>Connecté depuis %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Mode&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Could not open link</source>
        <translation>Impossible d’ouvrir le lien</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>Le dossier des journaux n’est pas disponible</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>Le dossier des journaux n’existe pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>Impossible d’ouvrir le dossier des journaux&#xa0;: %1</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>Impossible d’effectuer l’action sur le compte</translation>
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
        <translation>Afficher la page VPN</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>Afficher la page Emplacements</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>Afficher la page Mode</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>Afficher la page Paramètres</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>Afficher la page Compte</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>Rechercher : le champ de connexion rapide de la page VPN, la liste de la page Emplacements</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Actualiser les emplacements</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>Fermer la fenêtre ; Tovra reste dans la zone de notification</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>Quitter Tovra</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>Fermer une liste, un menu ou une boîte de dialogue</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>Afficher ces raccourcis clavier</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
</TS>
