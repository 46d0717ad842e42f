<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
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
        <translation>Türkiye</translation>
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
        <translation>Indisponible</translation>
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
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
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
        <translation>Automatique</translation>
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
