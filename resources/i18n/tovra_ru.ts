<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
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
        <translation>Афганистан</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>Аландские острова</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>Албания</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>Алжир</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>Американские Самоа</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>Андорра</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>Ангола</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>Ангвилла</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>Антигуа и Барбуда</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>Аргентина</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>Армения</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>Аруба</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Австралия</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Австрия</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>Азербайджан</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>Багамы</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>Бахрейн</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>Бангладеш</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>Барбадос</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>Беларусь</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>Бельгия</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>Белиз</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>Бенин</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>Бермуды</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>Бутан</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>Боливия</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>Босния и Герцеговина</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>Ботсвана</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Бразилия</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>Бруней Даруссалам</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>Болгария</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>Буркина-Фасо</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>Бурунди</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>Камбоджа</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>Камерун</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Канада</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>Кабо-Верде</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>Каймановы острова</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>Центрально-африканская республика</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>Чад</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>Чили</translation>
    </message>
    <message>
        <source>China</source>
        <translation>Китай</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>Колумбия</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>Коморы</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>Конго</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>Демократическая Республика Конго</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>Острова Кука</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>Коста-Рика</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>Кот-д&apos;Ивуар</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>Хорватия</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>Куба</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>Кипр</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Чехия</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Дания</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>Джибути</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>Доминика</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>Доминиканская республика</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>Эквадор</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>Египет</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>Сальвадор</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>Экваториальная Гвинея</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>Эритрея</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>Эстония</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>Эфиопия</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>Фолклендские (Мальвинские) острова</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>Фарерские острова</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>Фиджи</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Финляндия</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Франция</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>Французская Гвиана</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>Французская Полинезия</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>Габон</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>Гамбия</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>Грузия</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Германия</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>Гана</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>Гибралтар</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>Греция</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>Гренландия</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>Гренада</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>Гваделупа</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>Гуам</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>Гватемала</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>Гернси</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>Гвинея</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>Гвинея-Бисау</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>Гайана</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>Гаити</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>Государство-город Ватикан</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>Гондурас</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>Гонконг</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Венгрия</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>Исландия</translation>
    </message>
    <message>
        <source>India</source>
        <translation>Индия</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>Индонезия</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>Иран</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>Ирак</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Ирландия</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>Остров Мэн</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>Израиль</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>Италия</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>Ямайка</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Япония</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>Джерси</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>Иордания</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>Казахстан</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>Кения</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>Кирибати</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>Северная Корея</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>Южная Корея</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Кувейт</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>Киргизия</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>Лаосская Народно-Демократическая Республика</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>Латвия</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>Ливан</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>Лесото</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>Либерия</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>Ливия</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Лихтенштейн</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>Литва</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>Люксембург</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>Макао</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>Северная Македония</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>Мадагаскар</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>Малави</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>Малайзия</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>Мальдивы</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>Мали</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>Мальта</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>Маршалловы острова</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>Мартиника</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>Мавритания</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>Маврикий</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>Майот</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>Мексика</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>Федеративные Штаты Микронезии</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>Молдавия</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>Монако</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>Монголия</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>Черногория</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>Монтсеррат</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>Марокко</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>Мозамбик</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Мьянма</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>Намибия</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>Науру</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>Непал</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Нидерланды</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>Новая Каледония</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Новая Зеландия</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>Никарагуа</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>Нигер</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>Нигерия</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>Ниуэ</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>Остров Норфолк</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>Острова северной Марианы</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Норвегия</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>Оман</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>Пакистан</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>Палау</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>Палестина</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>Панама</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>Папуа — Новая Гвинея</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>Парагвай</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>Перу</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>Филиппины</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Польша</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Португалия</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>Пуэрто-Рико</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Катар</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>Реюньон</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Румыния</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>Российская Федерация</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>Руанда</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>Остров Святой Елены, Остров Вознесения и Тристан-да-Кунья</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>Сент-Китс и Невис</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>Сент-Люсия</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>Сен-Пьер и Микелон</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>Сент-Винсент и Гренадины</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>Самоа</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>Сан-Марино</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>Сан-Томе и Принсипи</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>Саудовская Аравия</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>Сенегал</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>Сербия</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>Сейшелы</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>Сьерра-Леоне</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Сингапур</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>Словакия</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>Словения</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>Соломоновы Острова</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>Сомали</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>Южная Африка</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>Южный Судан</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>Испания</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>Шри-Ланка</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>Судан</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>Суринам</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>Эсватини</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Швеция</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Швейцария</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>Сирийская Арабская Республика</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>Тайвань</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>Таджикистан</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>Танзания</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>Таиланд</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>Восточный Тимор</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>Того</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>Токелау</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>Тонга</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>Тринидад и Тобаго</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>Тунис</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Türkiye</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>Туркменистан</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>Острова Туркс и Каикос</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>Тувалу</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>Уганда</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Украина</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>Объединённые Арабские Эмираты</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Соединённое Королевство</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>Соединённые штаты</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>Уругвай</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>Узбекистан</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>Вануату</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>Венесуэла</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>Вьетнам</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>Виргинские острова (Британия)</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>Виргинские острова (США)</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>Уоллес и Футана</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>Западная Сахара</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>Йемен</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>Замбия</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>Зимбабве</translation>
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
        <translation>Недоступно</translation>
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
        <translation>Вкл.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
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
        <translation>Авто</translation>
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
