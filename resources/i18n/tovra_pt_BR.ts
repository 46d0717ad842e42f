<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
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
        <translation>Afeganistão</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>Ilhas Åland</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>Albânia</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>Argélia</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>Samoa Americana</translation>
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
        <translation>Anguila</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>Antígua e Barbuda</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>Argentina</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>Armênia</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>Aruba</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Austrália</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Áustria</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>Azerbaidjão</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>Bahamas</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>Barein</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>Bangladesh</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>Barbados</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>Bielo-Rússia</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>Bélgica</translation>
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
        <translation>Butão</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>Bolívia</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>Bósnia-Herzegóvina</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>Botsuana</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brasil</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>Brunei</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>Bulgária</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>Burquina</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>Burundi</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>Camboja</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>Camarões</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Canadá</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>Cabo Verde</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>Ilhas Cayman</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>República Centro-Africana</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>Chade</translation>
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
        <translation>Colômbia</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>Comores</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>Congo</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>Congo, República Democrática do</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>Ilhas Cook</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>Costa Rica</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>Costa do Marfim</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>Croácia</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>Cuba</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>Chipre</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Chéquia</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Dinamarca</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>Djibuti</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>Domínica</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>República Dominicana</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>Equador</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>Egito</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>El Salvador</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>Guiné Equatorial</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>Eritréia</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>Estônia</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>Etiópia</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>Ilhas Malvinas (Falkland)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>Ilhas Faroe</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>Fiji</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlândia</translation>
    </message>
    <message>
        <source>France</source>
        <translation>França</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>Guiana Francesa</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>Polinésia Francesa</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>Gabão</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>Gâmbia</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>Geórgia</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Alemanha</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>Gana</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>Gibraltar</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>Grécia</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>Groenlândia</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>Granada</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>Guadalupe</translation>
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
        <translation>Guiné</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>Guiné-Bissau</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>Guiana</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>Haiti</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>Santa Sé (Cidade-Estado do Vaticano)</translation>
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
        <translation>Hungria</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>Islândia</translation>
    </message>
    <message>
        <source>India</source>
        <translation>Índia</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>Indonésia</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>Irã, República Islâmica do</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>Iraque</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irlanda</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>Ilha de Man</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>Israel</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>Itália</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>Jamaica</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japão</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>Jersey</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>Jordânia</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>Cazaquistão</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>Quênia</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>Kiribati</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>Coreia do Norte</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>Coreia do Sul</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Kuwait</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>Quirguistão</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>República Popular Democrática do Laos</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>Letônia</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>Líbano</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>Lesoto</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>Libéria</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>Líbia</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Liechtenstein</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>Lituânia</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>Luxemburgo</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>Macau</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>Macedônia do Norte</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>Madagascar</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>Malaui</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>Malásia</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>Maldivas</translation>
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
        <translation>Ilhas Marshall</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>Martinica</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>Mauritânia</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>Maurício</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>Maiote</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>México</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>Micronésia, Estados Federados da</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>Moldávia</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>Mônaco</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>Mongólia</translation>
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
        <translation>Marrocos</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>Moçambique</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Myanmar</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>Namíbia</translation>
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
        <translation>Países Baixos</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>Nova Caledônia</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Nova Zelândia</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>Nicarágua</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>Níger</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>Nigéria</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>Niue</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>Ilha Norfolk</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>Ilhas Marianas do Norte</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Noruega</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>Omã</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>Paquistão</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>Palau</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>Palestina, Estado da</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>Panamá</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>Papua-Nova Guiné</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>Paraguai</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>Filipinas</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Polônia</translation>
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
        <translation>Catar</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>Reunião</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Romênia</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>Federação Russa</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>Ruanda</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>Santa Helena, Ascensão e Tristão da Cunha</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>São Cristóvão e Névis</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>Santa Lúcia</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>São Pedro e Miquelon</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>São Vicente e Granadinas</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>Samoa</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>São Marino</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>São Tomé e Príncipe</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>Arábia Saudita</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>Senegal</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>Sérvia</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>Seychelles</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>Serra Leoa</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Cingapura</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>Eslováquia</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>Eslovênia</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>Ilhas Salomão</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>Somália</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>África do Sul</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>Sudão do Sul</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>Espanha</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>Sri Lanka</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>Sudão</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>Suriname</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>Suazilândia</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Suécia</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Suíça</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>República Árabe da Síria</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>Taiwan</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>Tadjiquistão</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>Tanzânia</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>Tailândia</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>Timor Leste</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>Togo</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>Toquelau</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>Tonga</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>Trinidade e Tobago</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>Tunísia</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Turquia</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>Turcomenistão</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>Ilhas Turks e Caicos</translation>
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
        <translation>Ucrânia</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>Emirados Árabes Unidos</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Reino Unido</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>Estados Unidos</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>Uruguai</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>Uzbequistão</translation>
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
        <translation>Vietnã</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>Ilhas Virgens Britânicas</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>Ilhas Virgens dos Estados Unidos</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>Wallis e Futuna</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>Saara Ocidental</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>Iêmen</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>Zâmbia</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>Zimbábue</translation>
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
        <translation>Indisponível</translation>
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
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
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
